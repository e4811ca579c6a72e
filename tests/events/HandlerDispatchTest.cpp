#include "tests/events/ReceiptEvents.h"

namespace {

/*!
 * A subclass that sees each call of a virtual operation, and passes it on. Its lines go into the
 * host's journal, between the host's.
 */
class SeeingPlugin : public TestPlugin
{
public:
    explicit SeeingPlugin(QStringList &journal)
        : m_journal(journal)
    {
    }

    QSharedPointer<TaraInfo> createTara(const QSharedPointer<GoodsItem> &goods) override
    {
        see("createTara", goods->getPosnum());
        return TestPlugin::createTara(goods);
    }

    QSharedPointer<PackagingInfo>
    createPackagingInfo(const QSharedPointer<GoodsItem> &goods) override
    {
        see("createPackagingInfo", goods->getPosnum());
        return TestPlugin::createPackagingInfo(goods);
    }

    void savePluginData() const override
    {
        m_journal << "savePluginData";
        TestPlugin::savePluginData();
    }

    QSharedPointer<TaraInfo> getTaraByPosnum(int posnum) const override
    {
        see("getTaraByPosnum", posnum);
        return TestPlugin::getTaraByPosnum(posnum);
    }

    QSharedPointer<PackagingInfo> getPackagingInfoByPosnum(int posnum) const override
    {
        see("getPackagingInfoByPosnum", posnum);
        return TestPlugin::getPackagingInfoByPosnum(posnum);
    }

    void modifyTaraCapacity(const QSharedPointer<TaraInfo> &tara, double newCapacity) override
    {
        see("modifyTaraCapacity", tara->posnum, newCapacity);
        TestPlugin::modifyTaraCapacity(tara, newCapacity);
    }

    void modifyPackagingUsedCapacity(const QSharedPointer<PackagingInfo> &info,
                                     double newUsedCapacity) override
    {
        see("modifyPackagingUsedCapacity", info->posnum, newUsedCapacity);
        TestPlugin::modifyPackagingUsedCapacity(info, newUsedCapacity);
    }

    bool modifyPackagingPositionQuantity(const QSharedPointer<PackagingInfo> &info,
                                         double quantityDelta) override
    {
        see("modifyPackagingPositionQuantity", info->posnum, quantityDelta);
        return quantityAnswer;
    }

    bool quantityAnswer = true; //!< told instead of asking the host

private:
    void see(const QString &operation, int posnum) const
    {
        m_journal << QString("%1 %2").arg(operation).arg(posnum);
    }

    void see(const QString &operation, int posnum, double amount) const
    {
        m_journal << QString("%1 %2: %3").arg(operation).arg(posnum).arg(amount);
    }

    QStringList &m_journal;
};

class HandlerDispatch : public testing::Test
{
protected:
    HandlerDispatch()
    {
        plugin.init();
        plugin.setDocument(host.receipt());
        host.journal.clear();
    }

    //! The lines of a save.
    static QStringList savePluginData() { return QStringList{"savePluginData"} + savedOnce(); }

    FakeHost host;
    SeeingPlugin plugin{host.journal};
};

TEST_F(HandlerDispatch, TaraAdded)
{
    host.addTara(2, 1.5);

    EXPECT_EQ(host.journal, QStringList({"createTara 2", "getTaraByPosnum 2"}) + savePluginData());
}

TEST_F(HandlerDispatch, KnownTaraAdded)
{
    plugin.putTara(2, "A", 1.0, 1.0);

    host.addTara(2, 1.5);

    EXPECT_EQ(host.journal,
              QStringList({"createTara 2", "getTaraByPosnum 2", "modifyTaraCapacity 2: 1.5"})
                  + savePluginData());
}

TEST_F(HandlerDispatch, GoodsAdded)
{
    host.addGoods(5, 2.0);

    EXPECT_EQ(host.journal, QStringList({"createPackagingInfo 5", "getPackagingInfoByPosnum 5",
                                         "modifyPackagingUsedCapacity 5: 2"})
                                + savePluginData());
}

TEST_F(HandlerDispatch, OtherAdded)
{
    host.addOther(5, 2.0);

    EXPECT_EQ(host.journal, QStringList());
}

TEST_F(HandlerDispatch, GoodsStornoed)
{
    host.putPosition(5, Tmc::PackagingGoods, QVariant(), 2, 2);

    host.storno(5);

    EXPECT_EQ(host.journal, QStringList{"getPackagingInfoByPosnum 5"} + savePluginData());
}

TEST_F(HandlerDispatch, TaraStornoed)
{
    host.putPosition(2, Tmc::Tara, 1.5, 1, 1);
    plugin.putTara(2, "A", 1.5, 0.0);
    plugin.putGoods(5, {{"A", 1.0}});
    plugin.putGoods(6, {{"A", 0.5}});

    host.storno(2);

    EXPECT_EQ(
        host.journal,
        QStringList({"getTaraByPosnum 2", "switch off", "modifyPackagingPositionQuantity 5: -1",
                     "modifyPackagingPositionQuantity 6: -0.5", "switch on", "loyalty"})
            + savePluginData());
}

TEST_F(HandlerDispatch, TaraStornoed_TrustsTheAnswerOfTheOverride)
{
    host.putPosition(2, Tmc::Tara, 1.5, 1, 1);
    plugin.putTara(2, "A", 1.5, 0.0);
    const auto goods = plugin.putGoods(5, {{"A", 1.0}});
    plugin.quantityAnswer = false;

    host.storno(2);

    EXPECT_EQ(*goods, (PackagingInfo{5, {{"A", 1.0}}}));
}

TEST_F(HandlerDispatch, TaraStornoed_TakesTheEntryAwayWhenTheOverrideAgrees)
{
    host.putPosition(2, Tmc::Tara, 1.5, 1, 1);
    plugin.putTara(2, "A", 1.5, 0.0);
    const auto goods = plugin.putGoods(5, {{"A", 1.0}, {"B", 2.0}});

    host.storno(2);

    EXPECT_EQ(*goods, (PackagingInfo{5, {{"B", 2.0}}}));
}

TEST_F(HandlerDispatch, OtherStornoed)
{
    host.putPosition(4, Tmc::NoTara, QVariant(), 1, 1);

    host.storno(4);

    EXPECT_EQ(host.journal, savePluginData());
}

TEST_F(HandlerDispatch, TaraChanged)
{
    host.putPosition(2, Tmc::Tara, 1.5, 1, 1);
    plugin.putTara(2, "A", 1.5, 0.0);
    plugin.putGoods(5, {{"A", 1.0}});
    plugin.putGoods(6, {{"A", 0.5}});

    host.changeQuantity(2, 3);

    EXPECT_EQ(host.journal, QStringList({"getTaraByPosnum 2", "modifyTaraCapacity 2: 4.5",
                                         "modifyPackagingPositionQuantity 5: 3"})
                                + savePluginData());
}

TEST_F(HandlerDispatch, GoodsChanged)
{
    host.putPosition(5, Tmc::PackagingGoods, QVariant(), 1, 1);
    plugin.putGoods(5);

    host.changeQuantity(5, 3);

    EXPECT_EQ(host.journal,
              QStringList({"getPackagingInfoByPosnum 5", "modifyPackagingUsedCapacity 5: 3"})
                  + savePluginData());
}

} // namespace
