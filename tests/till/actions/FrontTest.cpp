#include "host/ActivityNotifier.h"
#include "host/Dialog.h"
#include "host/Event.h"
#include "host/Singleton.h"
#include "tests/till/support/TestFront.h"
#include "tests/till/support/TillFixture.h"

#include <optional>

// Whom the register asks and tells: the front that was installed last.

namespace till {

namespace {

class Fronts : public TillTest
{
protected:
    Fronts()
    {
        commands.reset();
        carryOut(command::Open{});
        carryOut(command::Add{"CHIPS"});
        first.asked = [this](const Question &) { return hears("first"); };
        second.asked = [this](const Question &) { return hears("second"); };
        first.shown = [this](const tr::Tr &message) { shown.append(message.key()); };
    }

    bool hears(const QString &name)
    {
        asked.append(name);
        return false;
    }
    Outcome carryOut(const Command &command) { return till->cashRegister().carryOut(command); }

    TestFront first;
    TestFront second;
    QStringList asked;
    QStringList shown;
};

TEST_F(Fronts, None_IsANoToEveryQuestion)
{
    EXPECT_EQ(carryOut(command::Storno{1}).kind, Outcome::Declined);
    EXPECT_EQ(carryOut(command::Pay{1}).reason.key(), QString("tillNotEnoughMoney"));
}

TEST_F(Fronts, InstalledLast_IsAskedUntilItsScopeEnds)
{
    const InstalledFront below(till->front(), first);
    {
        const InstalledFront above(till->front(), second);
        carryOut(command::Storno{1});
    }
    carryOut(command::Storno{1});
    EXPECT_EQ(asked, QStringList({"second", "first"}));
}

TEST_F(Fronts, OneBelowThatGoes_LeavesTheOneAbove)
{
    std::optional<InstalledFront> below(std::in_place, till->front(), first);
    const InstalledFront above(till->front(), second);
    below.reset();
    carryOut(command::Storno{1});
    EXPECT_EQ(asked, QStringList("second"));
}

TEST_F(Fronts, OneThatGoesWithinItsQuestion_LeavesTheNextToTheOneBefore)
{
    const InstalledFront below(till->front(), first);
    std::optional<InstalledFront> above(std::in_place, till->front(), second);
    second.asked = [&](const Question &) {
        above.reset();
        return hears("second");
    };
    carryOut(command::Storno{1});
    carryOut(command::Storno{1});
    EXPECT_EQ(asked, QStringList({"second", "first"}));
}

TEST_F(Fronts, Front_StaysOverARestart)
{
    const InstalledFront installed(till->front(), first);
    must(till->stop());
    must(till->start());
    carryOut(command::Storno{1});
    carryOut(command::Pay{1});
    EXPECT_EQ(asked, QStringList("first"));
    EXPECT_EQ(shown, QStringList("tillNotEnoughMoney"));
}

//! A text of a plugin's in memory that will not stay as it is.
class PassingText
{
public:
    tr::Tr text() const { return {raw(), raw()}; }
    void pass() { m_letters.fill(QLatin1Char('?')); }

private:
    QString raw() const { return QString::fromRawData(m_letters.constData(), m_letters.size()); }

    QString m_letters = QStringLiteral("packing");
};

TEST_F(Fronts, Texts_AreKeptThoughThePluginsMemoryIsNot)
{
    const InstalledFront installed(till->front(), first);
    PassingText text;
    std::optional<Question> question;
    std::optional<tr::Tr> message;
    first.asked = [&](const Question &put) {
        question = put;
        return true;
    };
    first.shown = [&](const tr::Tr &told) { message = told; };

    EXPECT_TRUE(
        MockFactory<Dialog>::create()->showQuestion(text.text(), 1, text.text(), text.text(), 0));
    Singleton<ActivityNotifier>::instance()->notify(
        Event(EActivityListener::eventError).addArgument("errorText", text.text()));
    text.pass();

    const tr::Tr kept("packing", "packing");
    EXPECT_EQ(question->text, kept);
    EXPECT_EQ(question->confirm, kept);
    EXPECT_EQ(question->cancel, kept);
    EXPECT_EQ(*message, kept);
}

} // namespace

} // namespace till
