#include "tests/till/console/ProgramFixture.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <sys/stat.h>
#include <unistd.h>

// What the program does with its database beside selling.

namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class Upkeep : public ProgramTest
{
protected:
    RunResult check() const { return run({"--db", database(), "check"}); }

    //! Leaves a receipt that was paid and an open one.
    void sell() const
    {
        EXPECT_EQ(
            run({"--db", database()}, "open\nadd BAG\npay\nopen\nadd CAN3\nadd BEER 2\n").status,
            0);
    }
};

TEST_F(Upkeep, CheckOfAWholeDatabase_IsWell)
{
    sell();
    const RunResult checked = check();
    EXPECT_EQ(checked.status, 0);
    EXPECT_EQ(checked.out, "file            whole\n"
                           "receipts        2 whole, 0 damaged, 0 set apart\n");
    EXPECT_EQ(checked.err, "");
}

TEST_F(Upkeep, CheckWithoutADatabase_IsAFileThatCannotBeUsed)
{
    const RunResult checked = check();
    EXPECT_EQ(checked.status, 3);
    EXPECT_THAT(checked.err, HasSubstr("no such file"));
}

TEST_F(Upkeep, CheckOfAFileThatCannotBeRead_CountsNothing)
{
    sell();
    const QByteArray bytes = contents(database());
    constexpr qsizetype page = 4096;
    overwrite(database(), bytes.left(page) + QByteArray(bytes.size() - page, '\xa5'));
    const RunResult checked = check();
    EXPECT_EQ(checked.status, 1);
    EXPECT_THAT(checked.out, StartsWith("file            the database is damaged ("));
    EXPECT_THAT(checked.out, HasSubstr("\nreceipts        cannot be read\n"));
}

TEST_F(Upkeep, CheckOfAFileWhoseHeadersCannotBeRead_NamesTheReceiptsOfWhichThereAreOtherRows)
{
    sell();
    QByteArray bytes = contents(database());
    constexpr qsizetype page = 4096; // the second is that of the headers
    overwrite(database(), bytes.replace(page, 200, QByteArray(200, '\xa5')));
    const RunResult checked = check();
    EXPECT_EQ(checked.status, 1);
    EXPECT_THAT(checked.out,
                HasSubstr("\nreceipts        0 whole, 2 damaged, 0 set apart, others cannot be "
                          "read\nreceipt 1       damaged: the database is damaged ("));
    EXPECT_THAT(checked.out, HasSubstr("\nreceipt 2       damaged: the database is damaged ("));
}

TEST_F(Upkeep, DamagedReceipt_IsRefusedThenSetApartAndAnotherOpened)
{
    sell();
    query("UPDATE positions SET price = -100 WHERE receipt = 2 AND place = 1");
    const RunResult refused = run({"--db", database()}, "show\n");
    EXPECT_EQ(refused.status, 3);
    EXPECT_EQ(refused.err,
              "till: " + database().toStdString()
                  + ": receipt 2: position 2 is not as it was stored; \"till set-apart "
                    "2\" sets this receipt apart, so that another can be opened\n");
    EXPECT_EQ(check().status, 1);
    EXPECT_THAT(check().out, HasSubstr("\nreceipt 2       damaged: position 2 is not as it was"));

    const RunResult apart = run({"--db", database(), "set-apart", "2"});
    EXPECT_EQ(apart.status, 0) << apart.err;
    EXPECT_EQ(run({"--db", database()}, "expect state none\nopen\nadd CHIPS\n").status, 0);
    EXPECT_EQ(check().status, 0);
    EXPECT_THAT(check().out, HasSubstr("\nreceipt 2       set apart: position 2 is not as it was"));
}

TEST_F(Upkeep, LinesOfAReceiptWhosePluginDataAreDamaged_AreShownWhenItIsSetApart)
{
    sell();
    query("UPDATE pluginData SET value = x'00' WHERE receipt = 2");
    const RunResult apart = run({"--db", database(), "set-apart", "2"});
    EXPECT_EQ(apart.status, 0);
    EXPECT_THAT(apart.out, HasSubstr("CAN3"));
    EXPECT_THAT(apart.out, HasSubstr("280.00"));
}

TEST_F(Upkeep, LinesThatHold_AreShownBesideOneThatDoesNot)
{
    sell();
    query("UPDATE positions SET price = -100 WHERE receipt = 2 AND place = 0");
    const RunResult apart = run({"--db", database(), "set-apart", "2"});
    EXPECT_EQ(apart.status, 0);
    EXPECT_THAT(apart.out, StartsWith("receipt 2 is set apart (position 1 is not as it was stored) "
                                      "and stays as it is\n"));
    EXPECT_THAT(apart.out, HasSubstr("BEER"));
    EXPECT_THAT(apart.out, Not(HasSubstr("CAN3")));
}

TEST_F(Upkeep, HeaderThatHolds_IsShownWithTheLines)
{
    EXPECT_EQ(run({"--db", database()}, "open return\nadd CHIPS\nadd BAG\norder A7\npay\n").status,
              0);
    query("UPDATE positions SET price = -100 WHERE place = 1");
    const RunResult apart = run({"--db", database(), "--lang", "en", "set-apart", "1"});
    EXPECT_THAT(apart.out, HasSubstr("Return No. 1 \302\267 closed \302\267 order A7"));
    EXPECT_THAT(apart.out, HasSubstr("CHIPS"));
}

TEST_F(Upkeep, ReceiptOfWhichNothingHolds_IsSetApartWithoutLines)
{
    sell();
    query("UPDATE positions SET price = -100 WHERE receipt = 2");
    EXPECT_THAT(run({"--db", database(), "set-apart", "2"}).out,
                HasSubstr("none of its lines can be read\n"));
}

// The header of an older receipt no longer agrees with the index of its time: all that reads it row
// by row sees a damaged receipt, and SQLite's own check a damaged file.
TEST_F(Upkeep, ReceiptByWhichTheFileOfAKilledTillFailsItsCheck_IsSetApartAndTheTillGoesOn)
{
    const QByteArray order(3000, 'x'); // so that each header is on a page of its own
    QByteArray sold;
    for (int i = 0; i < 4; ++i)
        sold += "open\nadd BAG\norder " + order + "\npay\n";
    EXPECT_EQ(run({"--db", database()}, sold).status, 0);
    const QByteArray opened = QByteArray::fromHex("1122334455667788");
    query("UPDATE receipts SET opened = 0x1122334455667788 WHERE id = 1");
    QProcess till;
    startRegister(till, "open\nadd CHIPS\n");
    till.kill();
    ASSERT_TRUE(till.waitForFinished(patience));
    QByteArray bytes = contents(database());
    const qsizetype header = bytes.indexOf("x\x02" + opened);
    ASSERT_GE(header, 0);
    bytes[header + 2] = '\x13';
    overwrite(database(), bytes);

    const RunResult refused = run({"--db", database()}, "show\n");
    EXPECT_EQ(refused.status, 3);
    EXPECT_THAT(refused.err, HasSubstr("receiptsByTime); \"till check\" tells which receipts hold, "
                                       "\"till set-apart NUMBER\" leaves one out"));
    EXPECT_EQ(contents(database()), bytes);
    EXPECT_THAT(check().out, HasSubstr("\nreceipt 1       damaged: its header is not as it was"));

    const RunResult apart = run({"--db", database(), "set-apart", "1"});
    EXPECT_EQ(apart.status, 0) << apart.err;
    const RunResult next = run({"--db", database()}, "expect total 129.90\npay\nopen\nadd BAG\n");
    EXPECT_EQ(next.status, 0) << next.err;
    EXPECT_THAT(check().out, HasSubstr("\nreceipt 1       set apart: its header is not as it was"));
}

TEST_F(Upkeep, WhereNothingCanBeSetApart_ACopyIsTheWayOn)
{
    sell();
    const int page = till::rowsOf(database(), "SELECT rootpage FROM sqlite_master WHERE name = "
                                              "'setApart'")[0][0]
                         .toInt();
    QByteArray bytes = contents(database());
    overwrite(database(), bytes.replace((page - 1) * 4096, 200, QByteArray(200, '\xa5')));
    const RunResult apart = run({"--db", database(), "set-apart", "2"});
    EXPECT_EQ(apart.status, 1);
    EXPECT_THAT(apart.err, HasSubstr("); put a copy that was made before in its place; "));
    EXPECT_THAT(apart.err, Not(HasSubstr("till set-apart")));
}

TEST_F(Upkeep, SetApartInADatabaseThatIsNotThere_MakesNone)
{
    const RunResult apart = run({"--db", database(), "set-apart", "2"});
    EXPECT_EQ(apart.status, 3);
    EXPECT_THAT(apart.err, HasSubstr("there is no such file"));
    EXPECT_FALSE(QFile::exists(database()));
}

TEST_F(Upkeep, SetApartInADatabaseOfTheFormatBefore_TellsThatItIsTakenOver)
{
    ASSERT_TRUE(QFile::copy(QStringLiteral(SCHEMA1_DATABASE), database()));
    QFile::setPermissions(database(), QFile::ReadOwner | QFile::WriteOwner);
    EXPECT_THAT(run({"--db", database(), "--lang", "en", "set-apart", "3"}).out,
                HasSubstr(database().toStdString() + ".schema1\n"));
}

TEST_F(Upkeep, DatabaseWithASecondName_IsOpenedUnderNeither)
{
    sell();
    const QString other = path("other.sqlite");
    ASSERT_EQ(link(QFile::encodeName(database()), QFile::encodeName(other)), 0);
    for (const QString &name : {database(), other}) {
        const RunResult refused = run({"--db", name}, "show\n");
        EXPECT_EQ(refused.status, 3);
        EXPECT_THAT(refused.err, HasSubstr("has another name too (a hard link)"));
    }
    for (const QStringList &reading : {QStringList{"receipts"},
                                       {"receipt", "1"},
                                       {"journal", "1"},
                                       {"check"},
                                       {"backup", "b"}}) {
        const RunResult refused = run(QStringList{"--db", other} + reading);
        EXPECT_EQ(refused.status, 3);
        EXPECT_EQ(refused.err, "till: " + other.toStdString()
                                   + ": this file has another name too (a hard link), by which "
                                     "another till could open it at the same time\n");
    }
}

TEST_F(Upkeep, SetApartOfWhatIsNoReceiptToSetApart_IsRefused)
{
    sell();
    EXPECT_EQ(run({"--db", database(), "set-apart", "two"}).status, 2);
    EXPECT_EQ(run({"--db", database(), "set-apart", "9"}).status, 1);
    EXPECT_EQ(run({"--db", database(), "set-apart", "1"}).status, 1);
    EXPECT_EQ(run({"set-apart"}).status, 2);
    EXPECT_EQ(run({"backup"}).status, 2);
    EXPECT_EQ(run({"backup", "a", "b"}).status, 2);
    EXPECT_EQ(run({"check", "a"}).status, 2);
}

TEST_F(Upkeep, BackUpAndCheckBesideATill_DoNotDisturbIt)
{
    QProcess till;
    startRegister(till, "open\nadd CHIPS\n");
    EXPECT_EQ(check().status, 0);
    EXPECT_EQ(run({"--db", database(), "backup", path("copy.sqlite")}).status, 0);
    EXPECT_EQ(run({"--db", database(), "backup", path("copy.sqlite")}).status, 3);
    endRegister(till, "add BAG\nexpect total 164.90\n");
    EXPECT_EQ(run({"--db", path("copy.sqlite")}, "expect total 129.90\n").status, 0);
}

TEST_F(Upkeep, DatabaseOfTheFormatBefore_IsTakenOverAndThatIsTold)
{
    ASSERT_TRUE(QFile::copy(QStringLiteral(SCHEMA1_DATABASE), database()));
    QFile::setPermissions(database(), QFile::ReadOwner | QFile::WriteOwner);
    const RunResult first = run({"--db", database()}, "expect total 386\n");
    EXPECT_EQ(first.status, 0);
    EXPECT_EQ(first.err, "");
    EXPECT_THAT(first.out, HasSubstr(database().toStdString() + ".schema1\n"));
    EXPECT_THAT(run({"--db", database()}).out, Not(HasSubstr("schema1")));
}

TEST_F(Upkeep, FolderThatTheTillMakes_IsItsOwnersAlone)
{
    constexpr QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup
                                          | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    const QString folder = path("shop/first");
    EXPECT_EQ(run({"--db", folder + "/till.sqlite"}, "open\n").status, 0);
    for (const QString &made : {folder, path("shop")})
        EXPECT_EQ(QFile::permissions(made) & others, QFile::Permissions()) << made.toStdString();
}

TEST_F(Upkeep, FolderOfAnEarlierTill_IsItsOwnersAloneUnlessItWasNamed)
{
    const auto mode = [this](const QString &folder) {
        struct stat status = {};
        EXPECT_EQ(stat(QFile::encodeName(path(folder)).constData(), &status), 0);
        return status.st_mode & 07777;
    };
    for (const QString folder : {"data", "data/till", "shop"}) {
        ASSERT_TRUE(QDir().mkpath(path(folder)));
        ASSERT_EQ(chmod(QFile::encodeName(path(folder)).constData(), 0755), 0);
    }
    EXPECT_EQ(run({}, "open\n").status, 0);
    EXPECT_EQ(run({"--db", path("shop/till.sqlite")}, "open\n").status, 0);
    EXPECT_EQ(mode("data/till"), 0700U);
    EXPECT_EQ(mode("data"), 0755U);
    EXPECT_EQ(mode("shop"), 0755U);
}

} // namespace
