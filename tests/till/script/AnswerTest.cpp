#include "tests/till/support/TillFixture.h"

// Questions, and the answers given in advance.

namespace till {

namespace {

using testing::HasSubstr;

class Answers : public TillTest
{
protected:
    Answers() { done({"open", "add CHIPS", "add OPENER", "add BAG"}); }

    //! A command line of the same till where a person answers \a answer; the texts are kept.
    void askAPerson(bool answer)
    {
        commands.reset();
        const auto ask = [this, answer](const QString &question, const CommandLine::Choices &) {
            asked.append(question);
            return answer;
        };
        commands = std::make_unique<CommandLine>(*till, notes, *translator, Style(),
                                                 CommandLine::Person{[](const QString &) {}, ask});
    }

    //! What is wrong with the answers in the end; empty when nothing is.
    QString leftOver() const { return commands->textOf(commands->checkAnswers()); }

    QStringList asked;
};

TEST_F(Answers, Queued_AreTakenInOrder)
{
    done({"answer yes no yes", "storno 1"});
    refused("storno 2");
    done({"storno 3"});
    expect({"position 1 stornoed", "position 2 live", "position 3 stornoed"});
    EXPECT_EQ(leftOver(), QString());
}

TEST_F(Answers, QueuedTwice_StandBehindTheFirst)
{
    done({"answer no", "answer yes"});
    refused("storno 1");
    done({"storno 1"});
}

TEST_F(Answers, WrongWord_QueuesNone)
{
    mistake("answer yes perhaps");
    EXPECT_EQ(leftOver(), QString());
}

TEST_F(Answers, Missing_CountsAsNoAndIsLeftOver)
{
    refused("storno 1");
    expect({"position 1 live"});
    EXPECT_EQ(leftOver(), QString("нет ответа на: tillStornoPosition"));
}

TEST_F(Answers, Unused_AreLeftOver)
{
    done({"answer yes no yes", "storno 1"});
    EXPECT_EQ(leftOver(), QString("лишних ответов: 2"));
}

TEST_F(Answers, Queued_SurviveARestart)
{
    done({"answer yes", "restart", "storno 1"});
    expect({"position 1 stornoed"});
}

TEST_F(Answers, QuestionAndAnswer_ArePrinted)
{
    takePrinted();
    done({"answer yes", "storno 1"});
    EXPECT_EQ(takePrinted(), QString("? Сторнировать позицию?\n  [Да] [Нет]\n  → Да"));
    done({"answer no"});
    refused("cancel");
    EXPECT_EQ(takePrinted(), QString("? Отменить чек?\n  [Да] [Нет]\n  → Нет"));
}

TEST_F(Answers, APerson_IsAskedWhenNoneIsQueued)
{
    askAPerson(true);
    done({"storno 1", "answer no"});
    refused("storno 2");
    EXPECT_EQ(asked, QStringList("? Сторнировать позицию?\n  [Да] [Нет]\n"));
    EXPECT_EQ(leftOver(), QString());
}

TEST_F(Answers, APersonsNo_Refuses)
{
    askAPerson(false);
    refused("cancel");
    expect({"state open"});
}

class English : public TillTest
{
protected:
    English() { start(setup(), QStringLiteral("en")); }
};

TEST_F(English, Refusals_AreInEnglishByTheirKeys)
{
    done({"open", "add CAN3", "add BEER", "add DARK"});
    takePrinted();
    refused("qty 1 2");
    EXPECT_EQ(takePrinted(), QString("! The tara is used by different goods.\n"
                                     "  Changing the quantity is not allowed\n"));
    expect({"message packingControlTaraUsedDiffGoods",
            "message Тара используется разными товарами. Изменение количества запрещено"});
}

TEST_F(English, Questions_AreInEnglishByTheirKeys)
{
    done({"set PackagingControl:allowSaleEmptyTara false", "open", "add CHIPS", "add CAN3"});
    takePrinted();
    done({"answer yes", "subtotal"});
    EXPECT_EQ(takePrinted(), QString("? There is empty tara in the receipt.\n"
                                     "  Storno the tara and go on to payment?\n"
                                     "  [OK] [Cancel]\n  → OK"));
}

TEST_F(English, Receipt_IsInEnglish)
{
    done({"open return", "add CHIPS", "show"});
    const std::string shown = takePrinted().toStdString();
    EXPECT_THAT(shown, HasSubstr("Return No. 1 · open · tara control suspended"));
    EXPECT_THAT(shown, HasSubstr("TOTAL"));
}

TEST_F(English, Change_IsInEnglish)
{
    done({"open", "add CHIPS", "pay 130"});
    EXPECT_EQ(takePrinted(), QString("  Change 0.10"));
}

} // namespace

} // namespace till
