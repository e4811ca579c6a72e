#include "till/recorder/Recorder.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <gmock/gmock.h>

// What notes become in a script: also those of a trace that somebody wrote by hand.

namespace till {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class Recorded : public testing::Test
{
protected:
    void read(const char *note)
    {
        const QJsonDocument document = QJsonDocument::fromJson(note);
        ASSERT_TRUE(document.isObject()) << note;
        recorder.read(document.object());
    }
    void start(const char *database = ":memory:")
    {
        recorder.read({{"kind", "start"}, {"database", database}});
    }
    void command(const QString &text) { recorder.read({{"kind", "command"}, {"text", text}}); }
    void outcome(const char *how) { recorder.read({{"kind", "outcome"}, {"outcome", how}}); }
    void takeUp(int id) { recorder.read({{"kind", "takeup"}, {"id", id}}); }
    void receipt(int id, int state)
    {
        recorder.read({{"kind", "receipt"}, {"id", id}, {"type", 1}, {"state", state}});
    }
    void open(int id)
    {
        command("open sale");
        takeUp(0);
        receipt(id, 0);
        outcome("done");
    }
    //! A command that did nothing but end so.
    void carriedOut(const QString &text, const char *how = "done")
    {
        command(text);
        outcome(how);
    }

    std::vector<std::string> lines;
    Recorder recorder{[this](const QString &line) { lines.push_back(line.toStdString()); }};
};

TEST_F(Recorded, MessageAndQuestionWithoutAKey_AreExpectedByTheirTexts)
{
    start();
    open(1);
    lines.clear();
    command("subtotal");
    read(R"({"kind":"question","key":"","text":"All\nright?"})");
    read(R"({"kind":"answer","confirmed":true})");
    read(R"({"kind":"message","key":"","text":"Empty  \"can\""})");
    read(R"({"kind":"message","key":"k","text":"x"})");
    read(R"({"kind":"message","key":"k","text":"x"})");
    read(R"({"kind":"message","key":"","text":""})");
    outcome("refused");
    EXPECT_THAT(lines,
                ElementsAre("answer yes", "expect refused subtotal",
                            "expect question \"All right?\"",
                            "expect message \"Empty  \"\"\"can\"\"\"\"", "expect message k"));
}

TEST_F(Recorded, MessageThatCannotBeNamed_IsNotExpected)
{
    start();
    open(1);
    lines.clear();
    command("subtotal");
    read(R"({"kind":"message","key":"","text":""})");
    read(R"({"kind":"message","key":"none","text":"x"})");
    outcome("done");
    EXPECT_THAT(lines, ElementsAre("subtotal"));
}

TEST_F(Recorded, WhatIsSaidWhileTheTillIsSwitched_IsExpected)
{
    start();
    open(1);
    lines.clear();
    start(); // by a front without lines
    read(R"({"kind":"question","key":"q","text":"x"})");
    read(R"({"kind":"answer","confirmed":true})");
    read(R"({"kind":"message","key":"m","text":"x"})");
    takeUp(1);
    receipt(1, 0);
    carriedOut("subtotal");
    EXPECT_THAT(lines,
                ElementsAre("answer yes", "restart", "expect question q", "expect question x",
                            "expect message m", "subtotal", "expect message none"));
}

TEST_F(Recorded, QuantityAboutHalfwayBetweenThousandths_IsNotExpected)
{
    start();
    open(1);
    command("add BEER 1");
    read(R"({"kind":"data","plugin":"P","key":"taraInfo","value":[
        {"posnum":1,"id":"a","capacity":3,"freeCapacity":2.9995},
        {"posnum":2,"id":"b","capacity":0.00149999999,"freeCapacity":1e9},
        {"posnum":3,"id":"c","capacity":1,"freeCapacity":0.33333333333}]})");
    read(R"({"kind":"data","plugin":"P","key":"packagingInfo","value":[
        {"posnum":4,"usedTara":{"a":0.0005,"c":0.6666666667}}]})");
    outcome("done");
    EXPECT_THAT(lines, Contains("expect tara 1 capacity 3"));
    EXPECT_THAT(lines, Contains("expect tara 3 capacity 1 free 0.333"));
    EXPECT_THAT(lines, Contains("expect goods 4 in 3 0.667 unplaced -0.667"));
    EXPECT_THAT(lines, Not(Contains(testing::StartsWith("expect tara 2"))));
}

TEST_F(Recorded, ReceiptOfBefore_IsSaidToBeLeftOut)
{
    start("t.sqlite");
    takeUp(7);
    receipt(7, 0);
    carriedOut("add CHIPS 1");
    carriedOut("restart");
    carriedOut("cancel");
    EXPECT_EQ(recorder.unsaid(),
              QStringList({"the receipt was opened before this begins: add CHIPS 1",
                           "the receipt was opened before this begins: cancel"}));
    open(8);
    EXPECT_EQ(recorder.unsaid().size(), 2);
    EXPECT_THAT(lines, Contains("open sale"));
}

TEST_F(Recorded, FailedCommands_AreSaid)
{
    start();
    open(1);
    carriedOut("add CHIPS 1", "failed");
    carriedOut("restart", "failed");
    carriedOut("save x", "failed");
    command("open sale");
    takeUp(0);
    takeUp(0);
    outcome("failed");
    EXPECT_EQ(recorder.unsaid(),
              QStringList({"could not be done: add CHIPS 1", "could not be done: restart",
                           "could not be done: open sale"}));
}

TEST_F(Recorded, QuestionOutsideOfCommands_IsSaid)
{
    start();
    read(R"({"kind":"question","key":"k","text":"Why?"})");
    read(R"({"kind":"answer","confirmed":true})");
    read(R"({"kind":"message","key":"k","text":"Because"})");
    EXPECT_EQ(recorder.unsaid(), QStringList("a question that no command asked: Why?"));
}

TEST_F(Recorded, WhatIsNoCommandOfTheRegister_IsNotInTheScript)
{
    start();
    open(1);
    lines.clear();
    for (const char *text : {"show", "say hello", "answer yes", "expect state open", "quit"})
        carriedOut(text);
    carriedOut("ad CHIPS", "mistake");
    carriedOut("expect state closed", "unexpected");
    EXPECT_THAT(lines, IsEmpty());
    EXPECT_TRUE(recorder.unsaid().isEmpty());
}

TEST_F(Recorded, CommandThatDidNotEnd_IsTheLast)
{
    start();
    open(1);
    command("storno 1");
    read(R"({"kind":"question","key":"k","text":"Really?"})");
    read(R"({"kind":"answer","confirmed":true})");
    lines.clear();
    recorder.finish();
    EXPECT_THAT(lines, ElementsAre("# What it came to:", "expect state open", "expect positions 0",
                                   "expect records 0 0", "expect total 0.00",
                                   "# The course of things ends within this command:", "answer yes",
                                   "storno 1"));
}

TEST_F(Recorded, NextTillInMemory_FindsNoReceipt)
{
    start();
    open(1);
    takeUp(0);
    read(R"({"kind":"verdict","file":"a.till","held":true,"fault":""})");
    lines.clear();
    start();
    open(1);
    EXPECT_THAT(lines, ElementsAre("open sale", "expect message none", "expect state open"));
}

TEST_F(Recorded, UnfinishedReceiptOfTheTillBefore_IsCancelled)
{
    start();
    open(1);
    lines.clear();
    read(R"({"kind":"verdict","file":"a.till","held":true,"fault":""})");
    EXPECT_EQ(lines.back(), "cancel");
}

TEST_F(Recorded, NextTillOnTheSameDatabase_GoesOn)
{
    start("t.sqlite");
    open(1);
    read(R"({"kind":"verdict","file":"a.till","held":true,"fault":""})");
    takeUp(0);
    lines.clear();
    start("t.sqlite");
    takeUp(1);
    receipt(1, 0);
    carriedOut("cancel");
    EXPECT_EQ(lines.front(), "restart");
    EXPECT_TRUE(recorder.unsaid().isEmpty());
}

TEST_F(Recorded, NotesOfAnySort_AreSurvived)
{
    for (const char *note : {
             R"({})",
             R"({"kind":7})",
             R"({"kind":"outcome"})",
             R"({"kind":"answer"})",
             R"({"kind":"command"})",
             R"({"kind":"takeup","id":"x"})",
             R"({"kind":"receipt","state":17,"softChecks":7})",
             R"({"kind":"position","position":-1})",
             R"({"kind":"data","plugin":"P","key":"taraInfo","value":[7,{"posnum":"x"}]})",
             R"({"kind":"data","plugin":"P","key":"taraInfo",
                 "parts":[{"at":-5,"removed":1e9,"added":[7]},{"at":99,"removed":-1}, 7]})",
             R"({"kind":"data","plugin":"P","key":"packagingInfo","value":"x"})",
             R"({"kind":"outcome","outcome":"done"})",
             R"({"kind":"command","text":"open \""})",
             R"({"kind":"outcome","outcome":"done"})",
             R"({"kind":"verdict"})",
         }) {
        read(note);
    }
    recorder.finish();
    EXPECT_TRUE(recorder.unsaid().isEmpty());
    EXPECT_EQ(recorder.commands(), 0);
}

} // namespace

} // namespace till
