#include "tests/till/support/FailingDisk.h"
#include "tests/till/support/TillFixture.h"

// Commands on a disk that is full, or fails, and then works again.

namespace till {

namespace {

using testing::HasSubstr;
using testing::StartsWith;

class FullDisk : public TillTest
{
protected:
    FullDisk()
        : disk(directory.path())
    {
        done({"open", "add CAN3", "add BEER 2"});
    }

    //! Carries the command out on a full disk; it must be reported and leave nothing.
    void failsOnAFullDisk(const QString &line)
    {
        const ReceiptRecord before = receipt()->record();
        disk.leaveRoomFor(0);
        const std::string text = failed(line).toStdString();
        EXPECT_THAT(text, StartsWith(setup().database.toStdString()));
        EXPECT_THAT(text, HasSubstr("full"));
        EXPECT_EQ(receipt()->record(), before);
        disk.repair();
    }

    FailingDisk disk;
};

TEST_F(FullDisk, Add_IsReportedAndTheNextOneWorks)
{
    failsOnAFullDisk("add DARK 1");
    expect({"records 1 1", "tara 1 free 1"});
    done({"add DARK 1"});
    expect({"position 3 article DARK", "tara 1 free 0", "goods 3 in 1 1"});
}

TEST_F(FullDisk, EachCommand_IsReportedAndLeavesTheReceipt)
{
    done({"add BEER 0.5"});
    for (const QString line :
         {"qty 2 1", "split 2 1", "unite 2 3", "order 5", "softcheck 5", "subtotal", "pay"}) {
        failsOnAFullDisk(line);
        expect({"state open", "control active", "records 1 2"});
    }
    done({"answer yes yes"});
    failsOnAFullDisk("storno 1");
    failsOnAFullDisk("cancel");
    done({"qty 2 1", "pay"});
}

TEST_F(FullDisk, Open_IsReportedAndTheNextOneWorks)
{
    done({"pay"});
    disk.leaveRoomFor(0);
    failed("open");
    expect({"state none"});
    EXPECT_EQ(mistake("add CHIPS"), QString("no receipt is open"));
    disk.repair();
    done({"open", "add CAN3"});
    expect({"records 1 0"});
}

TEST_F(FullDisk, PluginGoesOnFromWhatIsStored)
{
    failsOnAFullDisk("add CAN3");
    done({"qty 2 5"}); // the second can never came to be
    expect({"goods 2 in 1 3 unplaced 2", "records 1 1"});
}

TEST_F(FullDisk, Trace_GoesBackToTheStoredReceipt)
{
    heard.clear();
    failsOnAFullDisk("add DARK 1");
    EXPECT_EQ(noted("takeup", "id"), QVariantList() << receipt()->id());
    EXPECT_EQ(notesOf("receipt").last().value("positions").toInt(), 2);
    EXPECT_EQ(notesOf("outcome").last().value("outcome").toString(), QString("failed"));
}

} // namespace

} // namespace till
