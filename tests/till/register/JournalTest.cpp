#include "tests/till/support/TillFixture.h"
#include "till/archive/Archive.h"

// What is kept of a command stands in the journal of its receipt, and of no other command's.

namespace till {

namespace {

class StoredJournal : public TillTest
{
protected:
    //! Switches the till off; the kinds of what the first receipt's journal holds.
    QStringList kinds()
    {
        commands.reset();
        till.reset();
        const auto archive = must(Archive::open(setup().database));
        QStringList kinds;
        const QList<JournalEntry> entries = must(archive->journal(1)).entries;
        for (const JournalEntry &entry : entries)
            kinds.append(entry.kind);
        return kinds;
    }
};

TEST_F(StoredJournal, PaymentRefusedForTooLittleMoney_KeepsItsMessage)
{
    done({"open", "add CHIPS"});
    refused("pay 0.01");
    EXPECT_EQ(kinds().mid(kinds().size() - 2), QStringList({"command", "message"}));
}

TEST_F(StoredJournal, SubtotalOfAnEmptyReceipt_KeepsItsMessage)
{
    done({"open"});
    refused("subtotal");
    EXPECT_EQ(kinds(), QStringList({"action", "result", "command", "message"}));
}

TEST_F(StoredJournal, DeclinedCancellation_KeepsQuestionAndAnswer)
{
    done({"open", "answer no"});
    refused("cancel");
    EXPECT_EQ(kinds(), QStringList({"action", "result", "command", "question", "answer"}));
}

TEST_F(StoredJournal, TriggerRunWhenTheReceiptIsTakenUp_IsInNoCommandsJournal)
{
    done({"open", "softcheck 7"});
    const auto triggersBefore = noted("trigger", "type").count(control::AddSoftCheck);
    done({"restart", "add CHIPS"});
    EXPECT_EQ(noted("trigger", "type").count(control::AddSoftCheck), 2 * triggersBefore);
    EXPECT_EQ(kinds().count("trigger"), triggersBefore);
}

TEST_F(StoredJournal, MistakenCommand_LeavesNothing)
{
    done({"open"});
    mistake("add NOTHING");
    mistake("storno 9");
    EXPECT_EQ(kinds(), QStringList({"action", "result"}));
}

} // namespace

} // namespace till
