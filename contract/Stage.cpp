#include "contract/Stage.h"

#include <cmath>

namespace contract {

namespace {

//! \a thing, or the check is left out.
template <class Thing>
Thing granted(const Thing &thing, const char *operation)
{
    if (!thing)
        throw NotOffered{operation};
    return thing;
}

} // namespace

void Stage::begin()
{
    granted(driver->attach(&probe), "attach");
    receipt = granted(driver->open(), "open");
}

int Stage::tara() const
{
    return granted(driver->addTara(5.0, 2.0), "addTara");
}

int Stage::goods() const
{
    return granted(driver->addGoods(4.0), "addGoods");
}

GoodsItemPtr Stage::position(int posnum) const
{
    return granted(receipt->getPositionByPosnum(posnum), "getPositionByPosnum");
}

bool isSame(double one, double other)
{
    return std::abs(one - other) < 0.0005;
}

Row amount(const char *what, double seen, double needed)
{
    return {
        isSame(seen, needed),
        QStringLiteral("%1 is %2 and not %3").arg(QString::fromLatin1(what)).arg(seen).arg(needed)};
}

Row flag(bool holds, const char *otherwise)
{
    return {holds, QString::fromLatin1(otherwise)};
}

Finding runOnStage(Finding (*check)(Stage &))
{
    Stage stage;
    stage.driver = makeDriver();
    if (!stage.driver)
        return unchecked(QStringLiteral("the adapter has no host/ContractDriver.h"));
    stage.driver->start(true);
    return check(stage);
}

} // namespace contract
