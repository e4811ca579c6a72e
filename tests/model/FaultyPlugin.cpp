#include "host/LoyaltySystemLayer.h"
#include "tests/model/BrokenPlugins.h"

// A plugin's file with one of the faults, FAULT, or with none.

namespace model {

//! Identifiers in the order in which they are given out, so that the same receipt gives the same.
class Counting : public TestPlugin
{
public:
    QString getId() const override
    {
        static int given = 0;
        return QString("{%1}").arg(++given, 36, 10, QLatin1Char('0'));
    }
};

//! No fault.
template <typename Base>
class Sound : public Base
{
};

//! Ties no pieces of a split position together.
template <typename Base>
class Ungrouped : public Base
{
public:
    QSharedPointer<PackagingControl::PackagingInfo>
    createPackagingInfo(const QSharedPointer<GoodsItem> &goods) override
    {
        goods->setGroupId(QString());
        return Base::createPackagingInfo(goods);
    }
};

//! Keeps from the loyalty system what becomes of the receipt.
template <typename Base>
class Secretive : public Base
{
public:
    void handleEvent(const Event &event) override
    {
        LoyaltySystemLayer nobody;
        auto &slot = Singleton<LoyaltySystemLayer>::instance;
        LoyaltySystemLayer *const told = slot();
        slot = &nobody;
        Base::handleEvent(event);
        slot = told;
    }
};

using Faulty = FAULT<Counting>;

class FaultyPlugin : public Faulty
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "PackagingControl")
};

} // namespace model

#include "FaultyPlugin.moc"
