#include "tests/window/scripts/ScriptWindow.h"

namespace till {

namespace {

using ScriptInAWindow = ScriptWindow;

TEST_F(ScriptInAWindow, WithoutAScript_NothingCanBeRun)
{
    EXPECT_EQ(status(), "No script is open.");
    for (const char *button : {"scriptRun", "scriptStep", "scriptRunToLine", "scriptRewind"}) {
        EXPECT_FALSE(canClick(button)) << button;
        EXPECT_EQ(tip(button), "Open a script first") << button;
    }
    EXPECT_FALSE(canClick("scriptSave"));
    EXPECT_EQ(tip("scriptSave"), "Nothing was recorded yet");
}

TEST_F(ScriptInAWindow, Open_ShowsTheLinesAndTheFirstAsNext)
{
    open({"open", "add CHIPS"});
    EXPECT_EQ(cell(1, ScriptModel::Text), "add CHIPS");
    EXPECT_EQ(marks(), "▶.");
    EXPECT_EQ(status(), "s.till: 0 of 2 lines");
}

TEST_F(ScriptInAWindow, OpenWithoutAFile_ChangesNothing)
{
    open({"open"});
    chosen.clear();
    click("scriptOpen");
    EXPECT_EQ(marks(), "▶");
}

TEST_F(ScriptInAWindow, FileThatIsNone_IsSaidWithItsPlace)
{
    open({"open"});
    chosen = path("none.till");
    click("scriptOpen");
    EXPECT_TRUE(status().startsWith(chosen + ": ")) << status().toStdString();
    EXPECT_EQ(marks(), "▶");
}

TEST_F(ScriptInAWindow, Step_CarriesOutOneLine)
{
    open({"open", "add CHIPS", "expect total 129.90"});
    click("scriptStep");
    click("scriptStep");
    EXPECT_EQ(marks(), "✓✓▶");
    expect({"positions 1"});
    EXPECT_EQ(printedText(), "> open\n> add CHIPS");
    click("scriptStep");
    EXPECT_EQ(marks(), "✓✓✓");
    EXPECT_EQ(status(), "script s.till holds");
}

TEST_F(ScriptInAWindow, Run_CarriesOutAllLines)
{
    open({"open", "add CHIPS", "expect total 129.90", "pay"});
    runAll();
    EXPECT_EQ(status(), "script s.till holds");
    expect({"state closed"});
    EXPECT_EQ(noted("verdict", "held"), QVariantList{true});
}

TEST_F(ScriptInAWindow, FailingExpectation_IsMarkedWhereItStands)
{
    open({"open", "add CHIPS", "expect total 1", "pay"});
    runAll();
    EXPECT_EQ(marks(), "✓✓✗.");
    EXPECT_EQ(cell(2, ScriptModel::Text), "expect total 1\nexpected: total: 1.00\nfound: 129.90");
    EXPECT_GE(lines().rowHeight(2), 2 * lines().rowHeight(1));
    EXPECT_TRUE(status().startsWith("script s.till does not hold: " + path("s.till") + ":3"));
    expect({"state open"});
}

TEST_F(ScriptInAWindow, RunToALine_StopsBeforeIt)
{
    open({"open", "add CHIPS", "add CHIPS", "add CHIPS"});
    clickLine(2);
    click("scriptRunToLine");
    settle();
    EXPECT_EQ(marks(), "✓✓▶.");
    expect({"positions 1"});
}

TEST_F(ScriptInAWindow, EnterOnALine_RunsToIt)
{
    open({"open", "add CHIPS", "add CHIPS", "add CHIPS"});
    clickLine(0);
    QTest::keyClick(&lines(), Qt::Key_Down);
    QTest::keyClick(&lines(), Qt::Key_Return);
    settle();
    EXPECT_EQ(marks(), "✓▶..");
}

TEST_F(ScriptInAWindow, LineThatIsDone_CannotBeRunTo)
{
    open({"open", "add CHIPS", "pay"});
    click("scriptStep");
    clickLine(0);
    EXPECT_FALSE(canClick("scriptRunToLine"));
    EXPECT_EQ(tip("scriptRunToLine"), "Select a line that is still to come");
    QTest::keyClick(&lines(), Qt::Key_Return);
    EXPECT_EQ(marks(), "✓▶.");
}

TEST_F(ScriptInAWindow, Pause_StopsBetweenTwoLines)
{
    open({"open", "add CHIPS", "add CHIPS"});
    const auto pausing = notes.subscribe([this](const QJsonObject &note) {
        if (note["kind"] == "outcome" && marks() == "▶..")
            click("scriptRun");
    });
    click("scriptRun");
    EXPECT_EQ(part<QPushButton>("scriptRun").text(), "Pause");
    EXPECT_FALSE(canClick("scriptStep"));
    settle();
    EXPECT_EQ(marks(), "✓▶.");
    runAll();
    expect({"positions 2"});
}

TEST_F(ScriptInAWindow, RunAfterTheEnd_PlaysItAgain)
{
    open({"open", "add CHIPS", "pay"});
    runAll();
    runAll();
    EXPECT_EQ(noted("verdict", "held"), (QVariantList{true, true}));
    EXPECT_EQ(receipt()->id(), 2);
}

TEST_F(ScriptInAWindow, ToTheBeginning_StartsOver)
{
    open({"open", "add CHIPS", "pay"});
    click("scriptStep");
    click("scriptRewind");
    EXPECT_EQ(marks(), "▶..");
    EXPECT_EQ(printedText(), "");
}

TEST_F(ScriptInAWindow, MissingAnswer_IsAFault)
{
    TestFront front;
    front.asked = [](const Question &) {
        ADD_FAILURE() << "the cashier is asked";
        return true;
    };
    const InstalledFront installed(till->front(), front);
    open({"open", "add CHIPS", "expect refused storno 1"});
    runAll();
    EXPECT_TRUE(status().contains("no answer was given to: tillStornoPosition"));
    EXPECT_EQ(marks(), "✓✓✗");
}

TEST_F(ScriptInAWindow, QuestionOfTheCashiersOwn_IsTheCashiers)
{
    TestFront front;
    int asked = 0;
    front.asked = [&asked](const Question &) { return ++asked > 0; };
    const InstalledFront installed(till->front(), front);
    open({"open", "add CHIPS", "expect position 1 stornoed"});
    click("scriptStep");
    click("scriptStep");
    EXPECT_TRUE(till->cashRegister().carryOut(command::Storno{1}));
    EXPECT_EQ(asked, 1);
    click("scriptStep");
    EXPECT_EQ(status(), "script s.till holds");
}

//! What is clicked or comes due while a question stands.
class WithinAQuestion : public ScriptWindow
{
protected:
    WithinAQuestion()
    {
        done({"open", "add CHIPS"});
        open({"add CHIPS", "add CHIPS"});
    }

    //! Asks the cashier, who does \a meanwhile before the yes.
    void ask(const std::function<void()> &meanwhile)
    {
        TestFront front;
        front.asked = [&meanwhile](const Question &) {
            meanwhile();
            return true;
        };
        const InstalledFront installed(till->front(), front);
        EXPECT_TRUE(till->cashRegister().carryOut(command::Storno{1}));
    }
};

TEST_F(WithinAQuestion, Step_DoesNothing)
{
    ask([this] { click("scriptStep"); });
    EXPECT_EQ(marks(), "▶.");
    EXPECT_EQ(status(), "a command is under way");
    expect({"positions 0"});
}

TEST_F(WithinAQuestion, RunningScript_Pauses)
{
    ask([this] {
        click("scriptRun");
        settle();
    });
    EXPECT_EQ(marks(), "▶.");
    expect({"positions 0"});
    runAll();
    EXPECT_EQ(marks(), "✓✓");
}

TEST_F(WithinAQuestion, Record_DoesNotBegin)
{
    ask([this] { click("scriptRecord"); });
    EXPECT_EQ(part<QPushButton>("scriptRecord").text(), "Record");
}

TEST_F(ScriptInAWindow, WhileSomethingIsEntered_RunPauses)
{
    open({"open", "add PET1"});
    QDialog entry(&panel);
    click("scriptRun");
    entry.open();
    settle();
    EXPECT_EQ(status(), "Paused: something is being entered");
    expect({"positions 0"});
    entry.close();
    runAll();
    EXPECT_EQ(marks(), "✓✓");
}

TEST_F(ScriptInAWindow, OtherLanguage_ChangesAllTexts)
{
    open({"open", "expect total 1"});
    runAll();
    panel.translate(Translator("ru"));
    EXPECT_EQ(part<QPushButton>("scriptRun").text(), "Выполнить");
    EXPECT_TRUE(status().startsWith("сценарий s.till не выполнен: "));
    EXPECT_TRUE(cell(1, ScriptModel::Text).contains("ожидалось: total: 1.00"));
}

TEST_F(ScriptInAWindow, WhatCanBeTouched_HasAName)
{
    EXPECT_FALSE(lines().accessibleName().isEmpty());
    EXPECT_FALSE(part<QPlainTextEdit>("scriptPrinted").accessibleName().isEmpty());
    const auto buttons = panel.findChildren<QPushButton *>();
    EXPECT_EQ(buttons.size(), 7);
    for (const QPushButton *button : buttons) {
        EXPECT_FALSE(button->text().isEmpty()) << button->objectName().toStdString();
        EXPECT_FALSE(button->toolTip().isEmpty()) << button->objectName().toStdString();
    }
}

} // namespace

} // namespace till
