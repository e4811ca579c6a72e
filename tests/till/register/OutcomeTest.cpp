#include "tests/till/support/FailingDisk.h"
#include "tests/till/support/TillFixture.h"

// Who stopped a command, and why, in any language.

namespace till {

namespace {

class Outcomes : public TillTest
{
protected:
    QJsonObject lastOutcome() { return notesOf("outcome").last(); }
};

TEST_F(Outcomes, PluginsRefusal_HasTheMessageThatItShowed)
{
    done({"open", "add CAN3", "add BEER"});
    const Outcome outcome = ends(Outcome::RefusedByPlugin, "qty 1 2");
    EXPECT_EQ(outcome.reason.key(), QString("packingControlTaraAlmostFull"));
    EXPECT_EQ(outcome.text(Translator("en")),
              QString("The tara is partly filled.\nChanging the quantity is not allowed"));
    EXPECT_EQ(outcome.detail, QString());
    EXPECT_EQ(lastOutcome()["by"].toString(), QString("plugin"));
    EXPECT_EQ(lastOutcome()["key"].toString(), QString("packingControlTaraAlmostFull"));
}

TEST_F(Outcomes, ReasonOfThePlugin_OutlivesIt)
{
    done({"open", "add CAN3", "add BEER"});
    const Outcome outcome = ends(Outcome::RefusedByPlugin, "qty 1 2");
    must(till->stop());
    EXPECT_EQ(outcome.reason.key(), QString("packingControlTaraAlmostFull"));
}

TEST_F(Outcomes, RegistersRefusal_HasItsReason)
{
    done({"open"});
    const Outcome outcome = ends(Outcome::RefusedByRegister, "subtotal");
    EXPECT_EQ(outcome.reason.key(), QString("tillReceiptEmpty"));
    EXPECT_EQ(lastOutcome()["by"].toString(), QString("register"));
    EXPECT_EQ(lastOutcome()["text"].toString(), QString("В чеке нет позиций"));
}

TEST_F(Outcomes, CashiersNo_Declines)
{
    done({"open", "add CHIPS", "answer no no"});
    ends(Outcome::Declined, "storno 1");
    const Outcome outcome = ends(Outcome::Declined, "cancel");
    EXPECT_EQ(outcome.reason.key(), QString("tillDeclined"));
    EXPECT_EQ(outcome.text(Translator("en")), QString("\"Cancel the receipt?\" was answered no"));
    EXPECT_EQ(lastOutcome()["outcome"].toString(), QString("refused"));
    EXPECT_EQ(lastOutcome()["by"].toString(), QString("cashier"));
    EXPECT_EQ(lastOutcome()["key"].toString(), QString("tillDeclined"));
    EXPECT_EQ(lastOutcome()["text"].toString(),
              QString("На вопрос \"Отменить чек?\" ответили \"нет\""));
}

TEST_F(Outcomes, CashiersNoToThePlugin_Declines)
{
    done({"set PackagingControl:allowSaleEmptyTara false", "open", "add CAN3", "answer no"});
    const Outcome outcome = ends(Outcome::Declined, "subtotal");
    EXPECT_EQ(outcome.text(Translator("en")),
              QString("\"There is empty tara in the receipt. Storno the tara and go on to "
                      "payment?\" was answered no"));
}

TEST_F(Outcomes, Mistake_HasItsValuesInAnyLanguage)
{
    done({"open", "add CHIPS", "add BAG"});
    const Outcome outcome = ends(Outcome::Mistake, "unite 1 2");
    EXPECT_EQ(outcome.reason.values, QStringList({"1", "2"}));
    EXPECT_EQ(outcome.text(), QString("В позициях 1 и 2 разные товары"));
    EXPECT_EQ(outcome.text(Translator("en")),
              QString("positions 1 and 2 are of different articles"));
    EXPECT_FALSE(lastOutcome().contains("by"));
}

TEST_F(Outcomes, MistakeInTheWords_HasNoKey)
{
    const Outcome outcome = ends(Outcome::Mistake, "qty one 1");
    EXPECT_EQ(outcome.reason.key(), QString());
    EXPECT_EQ(outcome.text(Translator("en")), QString("\"one\" is not a position number"));
}

TEST_F(Outcomes, Failure_HasAReasonAndTheDetailOfTheFile)
{
    FailingDisk disk(directory.path());
    done({"open"});
    disk.leaveRoomFor(0);
    const Outcome outcome = ends(Outcome::Failed, "add CHIPS");
    disk.repair();
    EXPECT_EQ(outcome.reason.key(), QString("tillNotStored"));
    EXPECT_TRUE(outcome.detail.startsWith(setup().database));
    EXPECT_EQ(outcome.text(), "Не удалось сохранить: " + outcome.detail);
}

} // namespace

} // namespace till
