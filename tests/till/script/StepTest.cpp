#include "tests/till/support/TestFront.h"
#include "tests/till/support/TillFixture.h"
#include "till/script/Script.h"

namespace till {

namespace {

//! A script that is carried out a line at a time.
class Stepping : public TillTest
{
protected:
    Stepping() { start(setup(), QStringLiteral("en")); }

    void read(const QByteArray &bytes)
    {
        overwrite(path("s.till"), bytes);
        must(script.read(path("s.till")));
        play.emplace(script, *commands, [this](const QString &line) { echoed.append(line); });
    }

    //! Does so many steps, each of which must end well.
    void steps(int count)
    {
        for (int i = 0; i < count; ++i)
            must(play->step());
    }

    Script script;
    std::optional<ScriptPlay> play;
    QStringList echoed;
};

TEST_F(Stepping, Step_CarriesOutOneLine)
{
    read("open\nadd CHIPS\nadd CHIPS\n");
    steps(2);
    expect({"positions 1"});
    EXPECT_EQ(echoed, (QStringList{"open", "add CHIPS"}));
    EXPECT_EQ(play->next(), 2);
}

TEST_F(Stepping, LastLine_EndsItWithItsVerdict)
{
    read("open\nadd CHIPS");
    steps(1);
    EXPECT_FALSE(play->hasEnded());
    EXPECT_EQ(noted("verdict", "held"), QVariantList());
    steps(1);
    EXPECT_TRUE(play->hasEnded());
    EXPECT_EQ(noted("verdict", "held"), (QVariantList{true}));
}

TEST_F(Stepping, LineThatDoesNotEndWell_EndsIt)
{
    read("open\nexpect positions 3\nadd CHIPS\n");
    steps(1);
    const auto played = play->step();
    ASSERT_FALSE(played);
    EXPECT_EQ(played.error().place, path("s.till") + ":2");
    EXPECT_EQ(played.error().expected, "positions: 3");
    EXPECT_EQ(played.error().found, "0");
    EXPECT_TRUE(play->hasEnded());
    EXPECT_EQ(noted("verdict", "held"), (QVariantList{false}));
}

TEST_F(Stepping, StepBehindTheEnd_DoesNothing)
{
    read("open\nexpect positions 3\nadd CHIPS\n");
    steps(1);
    EXPECT_FALSE(play->step());
    steps(1);
    expect({"positions 0"});
    EXPECT_EQ(noted("verdict", "held").size(), 1);
}

TEST_F(Stepping, QuestionBetweenTwoSteps_GoesToTheFrontBehind)
{
    TestFront front;
    QList<tr::Tr> asked;
    front.asked = [&asked](const Question &question) {
        asked.append(question.text);
        return true;
    };
    const InstalledFront installed(till->front(), front);
    read("open\nadd CHIPS\nexpect position 1 stornoed\n");
    steps(2);
    EXPECT_TRUE(till->cashRegister().carryOut(command::Storno{1}));
    EXPECT_EQ(asked.size(), 1);
    steps(1);
}

TEST_F(Stepping, QuestionOfAStep_IsTheScripts)
{
    TestFront front;
    front.asked = [](const Question &) {
        ADD_FAILURE() << "the front behind is asked";
        return true;
    };
    const InstalledFront installed(till->front(), front);
    read("open\nadd CHIPS\nanswer yes\nstorno 1");
    steps(4);
    EXPECT_TRUE(play->hasEnded());
}

} // namespace

} // namespace till
