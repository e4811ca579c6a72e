#include "contract/Driver.h"

#if __has_include("host/ContractDriver.h")
#    include "host/ContractDriver.h"
#else
std::unique_ptr<contract::Driver> contract::makeDriver()
{
    return nullptr;
}
#endif

namespace contract {

int Driver::addTara(double, double)
{
    throw NotOffered{"addTara"};
}

int Driver::addGoods(double)
{
    throw NotOffered{"addGoods"};
}

bool Driver::change(int, double)
{
    throw NotOffered{"change"};
}

bool Driver::storno(int)
{
    throw NotOffered{"storno"};
}

bool Driver::split(int, const QList<double> &)
{
    throw NotOffered{"split"};
}

bool Driver::unite(const QList<int> &)
{
    throw NotOffered{"unite"};
}

bool Driver::subtotal()
{
    throw NotOffered{"subtotal"};
}

bool Driver::addSoftCheck()
{
    throw NotOffered{"addSoftCheck"};
}

void Driver::answer(bool)
{
    throw NotOffered{"answer"};
}

int Driver::questions() const
{
    throw NotOffered{"questions"};
}

QString Driver::message() const
{
    throw NotOffered{"message"};
}

QSharedPointer<AbstractDocument> Driver::storeAndLoad()
{
    throw NotOffered{"storeAndLoad"};
}

} // namespace contract
