#include "tests/window/scripts/ScriptWindow.h"

namespace till {

namespace {

//! What is done with the register is recorded, and must hold when it is played elsewhere.
class RecordedByClicks : public ScriptWindow
{
protected:
    bool carryOut(const Command &command) { return bool(till->cashRegister().carryOut(command)); }

    //! Saves the recording and plays it on another till.
    void playSaved()
    {
        chosen = path("recorded.till");
        click("scriptSave");
        till::Setup other = setup();
        other.database = ":memory:";
        must(till->stop());
        CashDesk desk(other, notes);
        must(desk.start());
        Script script;
        must(script.read(chosen));
        CommandLine line(desk, notes, *translator, {}, {[](const QString &) {}, {}, false});
        EXPECT_EQ(faultText(script.play(line, [](const QString &) {})), QString())
            << contents(chosen).toStdString();
        EXPECT_GT(script.expectations(), 0);
    }
};

TEST_F(RecordedByClicks, WholeReceipt_Holds)
{
    click("scriptRecord");
    EXPECT_TRUE(carryOut(command::Open{}) && carryOut(command::Add{"CAN3", 1})
                && carryOut(command::Add{"BEER", 2}) && carryOut(command::Pay{}));
    click("scriptRecord");
    EXPECT_TRUE(status().startsWith("Recorded: ")) << status().toStdString();
    playSaved();
}

TEST_F(RecordedByClicks, FromWithinAReceipt_BeginsWithWhatWasDoneToIt)
{
    EXPECT_TRUE(carryOut(command::Open{}) && carryOut(command::Add{"CAN3", 1}));
    click("scriptRecord");
    EXPECT_TRUE(carryOut(command::Add{"BEER", 2}));
    click("scriptRecord");
    EXPECT_EQ(cell(1, ScriptModel::Text), "open sale"); // behind the setting
    playSaved();
}

TEST_F(RecordedByClicks, AfterAReceipt_LeavesItOut)
{
    EXPECT_TRUE(carryOut(command::Open{}) && carryOut(command::Add{"CAN3", 1})
                && carryOut(command::Pay{}));
    click("scriptRecord");
    EXPECT_TRUE(carryOut(command::Open{}) && carryOut(command::Add{"CHIPS", 1}));
    click("scriptRecord");
    chosen = path("recorded.till");
    click("scriptSave");
    EXPECT_FALSE(contents(chosen).contains("CAN3"));
    playSaved();
}

TEST_F(RecordedByClicks, Lines_AreSeenAsTheyCome)
{
    click("scriptRecord");
    EXPECT_EQ(part<QPushButton>("scriptRecord").text(), "Stop recording");
    EXPECT_TRUE(carryOut(command::Open{}));
    const int rows = lines().model()->rowCount();
    EXPECT_GT(rows, 0);
    EXPECT_TRUE(carryOut(command::Add{"CHIPS", 1}));
    EXPECT_GT(lines().model()->rowCount(), rows);
    EXPECT_EQ(status(), QString("Recording: %1 lines").arg(lines().model()->rowCount()));
    EXPECT_EQ(tip("scriptOpen"), "A recording is under way: stop it");
}

TEST_F(RecordedByClicks, SavedScript_IsOpen)
{
    click("scriptRecord");
    EXPECT_TRUE(carryOut(command::Open{}) && carryOut(command::Add{"CHIPS", 1})
                && carryOut(command::Pay{}));
    click("scriptRecord");
    EXPECT_FALSE(canClick("scriptRun"));
    chosen = path("recorded.till");
    click("scriptSave");
    EXPECT_TRUE(status().startsWith(chosen + ": 3 command(s), ")) << status().toStdString();
    runAll();
    EXPECT_EQ(status(), "script recorded.till holds");
}

TEST_F(RecordedByClicks, RecordingThatIsNotSaved_IsOnlyDroppedWhenTheCashierSaysSo)
{
    QStringList asked;
    bool mayGo = false;
    panel.confirmLoss = [&](QWidget *, const QString &question) {
        asked.append(question);
        return mayGo;
    };
    click("scriptRecord");
    EXPECT_TRUE(carryOut(command::Open{}));
    EXPECT_FALSE(panel.mayDropRecording());
    click("scriptRecord");
    const int rows = lines().model()->rowCount();

    open({"quit"});
    click("scriptRecord");

    EXPECT_EQ(asked, QStringList(3, "The recording is not saved. Drop it?"));
    EXPECT_EQ(lines().model()->rowCount(), rows);
    EXPECT_EQ(part<QPushButton>("scriptRecord").text(), "Record");
    mayGo = true;
    open({"quit"});
    EXPECT_EQ(lines().model()->rowCount(), 1);
}

TEST_F(RecordedByClicks, RecordingThatIsSaved_IsLeftWithoutAQuestion)
{
    panel.confirmLoss = [](QWidget *, const QString &) {
        ADD_FAILURE() << "asked";
        return false;
    };
    click("scriptRecord");
    EXPECT_TRUE(carryOut(command::Open{}));
    click("scriptRecord");
    chosen = path("recorded.till");
    click("scriptSave");
    click("scriptRecord");
    EXPECT_EQ(part<QPushButton>("scriptRecord").text(), "Stop recording");
}

TEST_F(RecordedByClicks, FileThatIsNoRecordedScript_StaysAsItIs)
{
    click("scriptRecord");
    EXPECT_TRUE(carryOut(command::Open{}));
    click("scriptRecord");
    chosen = path("mine.till");
    overwrite(chosen, "open\n");
    click("scriptSave");
    EXPECT_EQ(contents(chosen), "open\n");
    EXPECT_TRUE(status().startsWith(chosen + ": ")) << status().toStdString();
}

TEST_F(RecordedByClicks, ReceiptOfATillBefore_IsSaidToBeMissing)
{
    EXPECT_TRUE(carryOut(command::Open{}) && carryOut(command::Add{"CAN3", 1}));
    must(till->stop());
    must(till->start());
    ScriptPanel other(*till, notes, Translator("en"));
    putUp(other);
    click("scriptRecord");
    EXPECT_TRUE(carryOut(command::Add{"BEER", 1}));
    click("scriptRecord");
    EXPECT_EQ(cell(0, ScriptModel::Text),
              "# the receipt was opened before this begins: add BEER 1");
}

} // namespace

} // namespace till
