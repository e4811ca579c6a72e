#include "host/EActivityListener.h"
#include "tests/till/support/TillFixture.h"

// The path that actions take, with the real plugin on it.

namespace till {

namespace {

class ActionPath : public TillTest
{
protected:
    //! The codes of the events since the notes were last forgotten.
    QVariantList events() const { return noted("event", "code"); }
    int recomputations() const { return receipt()->recomputations(); }
};

TEST_F(ActionPath, CashiersChange_IsReportedAsAppliedModifiers)
{
    done({"open", "add BEER"});
    heard.clear();
    done({"qty 1 2"});
    EXPECT_EQ(events(), QVariantList() << EActivityListener::eventModifierApplied);
    EXPECT_EQ(noted("action", "origin"), QVariantList({"cashier"}));
}

TEST_F(ActionPath, ChangeThroughTheQueue_IsReportedAsOfAProgram)
{
    done({"open", "add PET15", "add BEER 1.5"});
    heard.clear();
    done({"qty 1 2"});
    EXPECT_EQ(noted("event", "position"), QVariantList({1, 2}));
    EXPECT_EQ(events(), (QVariantList{EActivityListener::eventModifierApplied,
                                      EActivityListener::eventModifierApplied2}));
    EXPECT_EQ(noted("action", "origin"), QVariantList({"cashier", "program"}));
    EXPECT_EQ(noted("result", "result"), (QVariantList{EContext::Continue, EContext::Continue}));
}

TEST_F(ActionPath, NestedActions_AreDeeper)
{
    done({"open", "add PET15", "add BEER 1.5"});
    heard.clear();
    done({"qty 1 2"});
    EXPECT_EQ(noted("action", "depth"), QVariantList({1, 3}));
    EXPECT_EQ(noted("result", "depth"), QVariantList({3, 1}));
}

TEST_F(ActionPath, RemovalThroughTheQueue_IsReportedAsAStorno)
{
    done({"open", "add PET15", "add BEER 1.5"});
    heard.clear();
    done({"qty 1 0"});
    EXPECT_EQ(events(), (QVariantList{EActivityListener::eventModifierApplied,
                                      EActivityListener::eventPositionStorno}));
    EXPECT_EQ(noted("action", "type"),
              (QVariantList{control::ApplyModifiers, control::RemovePosition}));
}

TEST_F(ActionPath, Refusal_PublishesTheErrorAndNothingElse)
{
    done({"open", "add PET15", "add BEER 1"});
    heard.clear();
    refused("qty 1 2");
    EXPECT_EQ(events(), QVariantList() << EActivityListener::eventError);
    EXPECT_EQ(noted("result", "result"), QVariantList() << EContext::Error);
    expect({"position 1 quantity 1"});
}

TEST_F(ActionPath, StornoWithoutDialog_AsksOnlyThePluginsQuestion)
{
    done({"set PackagingControl:allowSaleEmptyTara false", "open", "add CHIPS", "add CAN3",
          "add PET1", "answer yes", "subtotal"});
    EXPECT_EQ(noted("question", "key"), QVariantList({"packingControlSaleEmptyTara"}));
    expect({"position 2 stornoed", "position 3 stornoed", "state subtotal"});
}

TEST_F(ActionPath, PluginsNo_CancelsTheSubtotal)
{
    done({"set PackagingControl:allowSaleEmptyTara false", "open", "add CAN3"});
    for (const QString line : {"subtotal", "pay"}) {
        heard.clear();
        done({"answer no"});
        refused(line);
        EXPECT_EQ(noted("result", "result"), QVariantList() << EContext::Cancel);
        expect({"state open", "position 1 live"});
    }
}

TEST_F(ActionPath, Numbers_AreNeverUsedTwice)
{
    done({"open", "add CHIPS", "add CHIPS", "answer yes yes", "storno 2", "storno 1", "add BAG",
          "split 3 0.5", "restart", "add BAG"});
    QList<int> numbers;
    for (const auto &line : receipt()->lines())
        numbers.append(line->getPosnum());
    EXPECT_EQ(numbers, QList<int>({1, 2, 3, 4, 5}));
}

TEST_F(ActionPath, Cascade_IsRecomputedOnceAfterTheSwitch)
{
    done({"open", "add CAN3", "add BEER 1", "add DARK 1", "add OIL 1"});
    const int before = recomputations();
    heard.clear();
    done({"answer yes", "storno 1"});
    EXPECT_EQ(noted("switch", "on"), QVariantList({false, true}));
    EXPECT_EQ(recomputations() - before, 2); // the can's own, and one for all its goods
    EXPECT_EQ(notesOf("loyalty").size(), 1);
    expect({"positions 0", "total 0"});
}

TEST_F(ActionPath, Return_IsBypassed)
{
    done({"open return", "add CAN3", "add BEER 1", "qty 1 2"});
    expect({"control suspended", "records 0 0", "log none"});
    EXPECT_TRUE(commands->renderReceipt().contains("контроль тары приостановлен"));
}

TEST_F(ActionPath, OrderAndSoftCheck_SuspendAndAreSeen)
{
    for (const QString line : {"order A-1", "softcheck 1"}) {
        done({"open", "add CAN3", "add BEER 1", line});
        expect({"log \"Добавлен софт-чек или заказ, работа плагина приостановлена\"",
                "control suspended"});
        EXPECT_TRUE(commands->renderReceipt().contains("контроль тары приостановлен"));
        done({"qty 1 2", "pay"});
    }
}

TEST_F(ActionPath, NextSale_IsWatchedAgain)
{
    done({"open", "softcheck 1", "add CHIPS", "pay", "open", "add CAN3"});
    expect({"control active", "records 1 0"});
}

TEST_F(ActionPath, Settings_ReachThePlugin)
{
    done({"open", "add CAN3", "set PackagingControl:allowSaleEmptyTara false"});
    expect({"state open", "records 1 0"}); // taken up again
    done({"answer no"});
    refused("subtotal");
    done({"set PackagingControl:allowSaleEmptyTara true", "subtotal"});
}

TEST_F(ActionPath, Restart_TakesUpTheReceiptInHandOnly)
{
    done({"open", "add CAN3", "add BEER 2"});
    const ReceiptRecord before = receipt()->record();
    done({"restart"});
    EXPECT_EQ(receipt()->record(), before);
    done({"pay", "restart"});
    expect({"state none"});
}

TEST_F(ActionPath, RestartAtSubtotal_OpensTheReceiptSoThatTheGateAsks)
{
    done({"open", "add CAN3", "subtotal", "set PackagingControl:allowSaleEmptyTara false"});
    expect({"state open"});
    done({"answer no"});
    refused("pay");
    expect({"question packingControlSaleEmptyTara", "state open"});
}

TEST_F(ActionPath, RestartAndSet_KeepAnInMemoryDatabaseAndTheCatalogue)
{
    till::Setup inMemory = setup();
    inMemory.database = ":memory:";
    inMemory.catalogue = directory.filePath("c.csv");
    ASSERT_TRUE(QFile::copy(setup().catalogue, inMemory.catalogue));
    start(inMemory);
    done({"open", "add CAN3"});
    ASSERT_TRUE(QFile::remove(inMemory.catalogue));
    done({"set PackagingControl:allowSaleEmptyTara no", "restart", "add BEER 2"});
    expect({"goods 2 in 1 2"});
}

TEST_F(ActionPath, RestartThatFails_LeavesTheTillOffUntilAnother)
{
    till::Setup lame = setup();
    lame.settingsFile = directory.filePath("s.ini");
    overwrite(lame.settingsFile, {});
    start(lame);
    done({"open", "add CAN3"});
    ASSERT_TRUE(QFile::remove(lame.settingsFile));
    EXPECT_TRUE(failed("restart").contains(lame.settingsFile));

    EXPECT_EQ(ends(Outcome::Failed, "add CAN3").text(Translator("en")),
              QString("the till is off; 'restart' switches it on"));
    EXPECT_EQ(commands->renderReceipt(), QString());
    EXPECT_TRUE(commands->completions({"qty", ""}).isEmpty());
    overwrite(lame.settingsFile, {});
    done({"restart", "add BEER 2"});
    expect({"goods 2 in 1 2"});
}

TEST_F(ActionPath, WithoutPlugin_TheTillWorksWithoutTara)
{
    till::Setup bare = setup();
    bare.plugin.clear();
    start(bare);
    done({"open", "add CAN3", "add BEER 2", "qty 1 2", "split 2 1", "unite 2 3", "softcheck 1",
          "answer yes", "storno 1", "subtotal", "pay"});
    expect({"control none", "records 0 0", "log none", "total 280"});
    EXPECT_TRUE(commands->renderReceipt().contains("без контроля тары"));
    EXPECT_TRUE(notesOf("trigger").isEmpty());
}

} // namespace

} // namespace till
