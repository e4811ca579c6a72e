#include "host/EActionType.h"
#include "tests/till/lookup/LookupFixture.h"

// The course of a receipt, looked up.

namespace {

using testing::HasSubstr;
using testing::Not;

class JournalLookup : public LookupTest
{
};

TEST_F(JournalLookup, Journal_TellsTheCourse)
{
    const QByteArray lines = "open\nadd CAN3\nadd BEER 1\nqty 1 2\nqty 2 1.5\nstorno 1\n"
                             "answer yes\nstorno 1\nadd CHIPS 2\nsplit 3 1\nunite 3 4\n"
                             "softcheck 5\nsubtotal\npay 500\n";
    EXPECT_EQ(run({"--db", database()}, lines).status, 1);
    EXPECT_EQ(told({"journal", "1"}),
              "open sale\n"
              "add CAN3 1\n"
              "add BEER 1\n"
              "qty 1 2\n"
              "  ! The tara is partly filled. Changing the quantity is not allowed\n"
              "  ✗ refused\n"
              "qty 2 1.5\n"
              "storno 1\n"
              "  ? Storno the position?\n"
              "  → No\n"
              "  ✗ declined\n"
              "storno 1\n"
              "  ? Storno the position?\n"
              "  → Yes\n"
              "    remove 2\n"
              "add CHIPS 2\n"
              "split 3 1\n"
              "unite 3 4\n"
              "softcheck 5\n"
              "subtotal\n"
              "close 500.00\n");
    EXPECT_EQ(objects({"journal", "1"})[0].value("type").toInt(), control::OpenReceipt);
}

TEST_F(JournalLookup, RefusalsOfTheRegister_AreInTheJournal)
{
    EXPECT_EQ(run({"--db", database()}, "open\nsubtotal\nadd CHIPS\nsubtotal\npay 2\ncancel\n"
                                        "answer yes\ncancel\n")
                  .status,
              1);
    EXPECT_EQ(told({"journal", "1"}), "open sale\n"
                                      "subtotal\n"
                                      "  ! There are no positions in the receipt\n"
                                      "add CHIPS 1\n"
                                      "subtotal\n"
                                      "pay 2.00\n"
                                      "  ! Not enough money to pay\n"
                                      "cancel\n"
                                      "  ? Cancel the receipt?\n"
                                      "  → No\n"
                                      "cancel\n"
                                      "  ? Cancel the receipt?\n"
                                      "  → Yes\n");
}

TEST_F(JournalLookup, DamagedRowsOfAJournal_AreNamedAndTheOthersTold)
{
    sell();
    query("UPDATE journal SET json = 'x' WHERE id = 1");
    query("UPDATE journal SET json = replace(json, '\"type\"', '\"tipe\"') WHERE id = 4");
    query("UPDATE journal SET kind = 'message' WHERE id = 5");
    for (const QStringList &form : {QStringList{}, {"--json"}}) {
        const RunResult done = lookUp(QStringList{"journal", "1"} + form);
        EXPECT_EQ(done.status, 1);
        EXPECT_EQ(done.err,
                  "till: receipt 1: row 1 of its journal: no note of a journal\n"
                  "till: receipt 1: row 4 of its journal: a note without \"type\"\n"
                  "till: receipt 1: row 5 of its journal: not the note that was stored\n");
        EXPECT_THAT(done.out, HasSubstr("BEER"));
        EXPECT_THAT(done.out, Not(HasSubstr("open sale")));
    }
    const RunResult checked = lookUp({"check"});
    EXPECT_EQ(checked.status, 1);
    EXPECT_THAT(checked.out, HasSubstr("receipts        3 whole, 0 damaged, 0 set apart\n"));
    EXPECT_THAT(checked.out, HasSubstr("\njournal of 1    row 4 of its journal: a note without"));
}

} // namespace
