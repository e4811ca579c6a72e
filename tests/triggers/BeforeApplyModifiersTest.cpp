#include "tests/triggers/TriggerTest.h"

#include "host/Quantity.h"

namespace {

constexpr auto otherModifier = static_cast<modifiers::Type>(99);
constexpr auto sharedKey = "packingControlTaraUsedDiffGoods";
constexpr auto partlyFilledKey = "packingControlTaraAlmostFull";

class BeforeApplyModifiers : public TriggerTest<TestPlugin>
{
protected:
    BeforeApplyModifiers()
    {
        host.modifiers().set(modifiers::Quantity, QVariant::fromValue(Quantity(2, quantModeNone)));
        host.modifiers().set(otherModifier, 1);
    }

    EContext::Result applyModifiersTo(int posnum)
    {
        return before(actions::on(posnum, control::ApplyModifiers));
    }

    bool modifiersAreKept()
    {
        return host.modifiers().isSet(modifiers::Quantity) && host.modifiers().isSet(otherModifier);
    }

    void expectLetThrough(int posnum)
    {
        EXPECT_EQ(applyModifiersTo(posnum), EContext::Continue);
        EXPECT_TRUE(modifiersAreKept());
        EXPECT_EQ(host.journal, QStringList());
    }

    void expectRefused(int posnum, const char *key)
    {
        EXPECT_EQ(applyModifiersTo(posnum), EContext::Error);
        EXPECT_EQ(host.journal, QStringList{QString("error %1").arg(key)});
    }

    //! Tara \a posnum of capacity 10 in the receipt, recorded with \a freeCapacity.
    void tara(int posnum, double freeCapacity)
    {
        host.putPosition(posnum, Tmc::Tara, 10.0, 1, 1);
        plugin.putTara(posnum, QString("tara %1").arg(posnum), 10, freeCapacity);
    }
};

TEST_F(BeforeApplyModifiers, PositionThatTheReceiptLacks_Continues)
{
    tara(1, 5);
    plugin.putTara(99, "elsewhere", 10, 5);
    expectLetThrough(99);
}

TEST_F(BeforeApplyModifiers, ActionWithoutPositionNumber_Continues)
{
    tara(1, 5);
    EXPECT_EQ(before(control::Action(control::ApplyModifiers, {})), EContext::Continue);
    EXPECT_TRUE(modifiersAreKept());
}

TEST_F(BeforeApplyModifiers, QuantityIsNotSet_ContinuesAndKeepsTheOtherModifiers)
{
    tara(1, 5);
    plugin.putGoods(2, {{"tara 1", 2}});
    plugin.putGoods(3, {{"tara 1", 3}});
    host.modifiers().clearAll();
    host.modifiers().set(otherModifier, 1);

    EXPECT_EQ(applyModifiersTo(1), EContext::Continue);
    EXPECT_TRUE(host.modifiers().isSet(otherModifier));
    EXPECT_EQ(host.journal, QStringList());
}

TEST_F(BeforeApplyModifiers, EmptyTara_Continues)
{
    tara(1, 10);
    expectLetThrough(1);
}

TEST_F(BeforeApplyModifiers, TaraFullOfOneGoods_Continues)
{
    tara(1, 0);
    plugin.putGoods(2, {{"tara 1", 10}});
    expectLetThrough(1);
}

TEST_F(BeforeApplyModifiers, TaraWithoutRecord_Continues)
{
    host.putPosition(1, Tmc::Tara, 10.0, 1, 1);
    plugin.putTara(2, "other", 10, 5);
    plugin.putGoods(3, {{"other", 5}});
    expectLetThrough(1);
}

TEST_F(BeforeApplyModifiers, OneGoodsInSeveralTaras_Continues)
{
    tara(1, 0);
    tara(2, 0);
    plugin.putGoods(3, {{"tara 1", 10}, {"tara 2", 10}});
    expectLetThrough(1);
}

TEST_F(BeforeApplyModifiers, PartlyFilledTara_IsRefusedAsSuch)
{
    tara(1, 5);
    plugin.putGoods(2, {{"tara 1", 5}});
    expectRefused(1, partlyFilledKey);
}

TEST_F(BeforeApplyModifiers, OverFullTara_IsRefusedAsPartlyFilled)
{
    tara(1, -1);
    plugin.putGoods(2, {{"tara 1", 11}});
    expectRefused(1, partlyFilledKey);
}

TEST_F(BeforeApplyModifiers, FullTaraOfTwoGoods_IsRefusedAsShared)
{
    tara(1, 0);
    plugin.putGoods(2, {{"tara 1", 4}});
    plugin.putGoods(3, {{"tara 1", 6}});
    expectRefused(1, sharedKey);
}

TEST_F(BeforeApplyModifiers, SharedAndPartlyFilledTara_IsRefusedAsShared)
{
    tara(1, 5);
    plugin.putGoods(2, {{"tara 1", 2}});
    plugin.putGoods(3, {{"tara 1", 3}});
    expectRefused(1, sharedKey);
}

TEST_F(BeforeApplyModifiers, OtherTaraIsPartlyFilled_Continues)
{
    tara(1, 10);
    tara(2, 5);
    expectLetThrough(1);
}

TEST_F(BeforeApplyModifiers, Refusal_DropsEveryModifier)
{
    tara(1, 5);
    applyModifiersTo(1);
    EXPECT_FALSE(host.modifiers().isSet(modifiers::Quantity));
    EXPECT_FALSE(host.modifiers().isSet(otherModifier));
}

TEST_F(BeforeApplyModifiers, Refusal_PublishesOneErrorForTheCashierOnly)
{
    tara(1, 5);
    applyModifiersTo(1);

    ASSERT_EQ(host.errors.size(), 1);
    const Event error = host.errors.constFirst();
    EXPECT_EQ(int(error.getCode()), 29);
    EXPECT_EQ(error.arguments().keys(), (QStringList{"errorText", "forCustomer"}));
    EXPECT_EQ(error.value("errorText", {}).metaType(), QMetaType::fromType<tr::Tr>());
    EXPECT_EQ(error.value("forCustomer", {}).metaType(), QMetaType::fromType<bool>());
    EXPECT_FALSE(error.value("forCustomer", true).toBool());
}

TEST_F(BeforeApplyModifiers, Refusal_ChangesNoRecordAndSavesNothing)
{
    tara(1, 5);
    plugin.putGoods(2, {{"tara 1", 5}});
    const auto taras = valuesOf(plugin.taraList);
    const auto goods = valuesOf(plugin.packagingList);

    applyModifiersTo(1);

    EXPECT_EQ(valuesOf(plugin.taraList), taras);
    EXPECT_EQ(valuesOf(plugin.packagingList), goods);
    EXPECT_EQ(host.journal.filter("save"), QStringList());
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(BeforeApplyModifiers, RefusedTwice_PublishesOnceForEach)
{
    tara(1, 5);
    applyModifiersTo(1);
    host.modifiers().set(modifiers::Quantity, QVariant::fromValue(Quantity(3, quantModeNone)));
    EXPECT_EQ(applyModifiersTo(1), EContext::Error);
    EXPECT_EQ(host.errors.size(), 2);
}

class BeforeApplyModifiersToOtherArticles : public BeforeApplyModifiers,
                                            public testing::WithParamInterface<int>
{
};

// A shared, partly filled tara record stands under the position's number, and must not be asked.
TEST_P(BeforeApplyModifiersToOtherArticles, Continues)
{
    host.putPosition(1, GetParam(), 10.0, 1, 1);
    plugin.putTara(1, "tara 1", 10, 5);
    plugin.putGoods(1, {{"tara 1", 2}});
    plugin.putGoods(2, {{"tara 1", 3}});
    expectLetThrough(1);
}

INSTANTIATE_TEST_SUITE_P(TaraMode, BeforeApplyModifiersToOtherArticles,
                         testing::Values(0, 2, 3, -1));

} // namespace
