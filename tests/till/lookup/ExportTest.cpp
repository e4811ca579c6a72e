#include "tests/till/lookup/LookupFixture.h"
#include "tests/till/terminal/Terminal.h"

// Many receipts are told of, and a till is on meanwhile.

namespace {

using testing::HasSubstr;
using testing::Not;

using Export = LookupTest;

TEST_F(Export, ExportThatTakesLong_StopsNoTill)
{
    constexpr qint64 many = 500; // more than a pipe holds
    sellMany(many);
    QProcess exporting;
    start(exporting, {"--db", database(), "receipts", "--json"});
    ASSERT_TRUE(exporting.waitForReadyRead(patience)); // then its pipe is full
    QProcess till;
    start(till, {"--db", database()});
    endRegister(till, "open\nadd CAN3\nadd BEER 2\npay\nopen\nadd CHIPS\n");
    EXPECT_EQ(exporting.state(), QProcess::Running);
    ASSERT_TRUE(exporting.waitForFinished(patience));
    EXPECT_EQ(exporting.exitCode(), 0);
    EXPECT_EQ(exporting.readAllStandardOutput().count('\n'), many);
    EXPECT_EQ(linesOf(told({"receipts", "--csv"})), 1 + many + 2);
}

TEST_F(Export, BesideATill_HasItsLastCommand)
{
    QProcess till;
    startRegister(till, "open\nadd CHIPS\n");
    EXPECT_THAT(told({"receipts"}), HasSubstr("129.90  Receipt · open · 1 pos.\n"));
    EXPECT_THAT(told({"receipt", "1"}), HasSubstr("CHIPS"));
    EXPECT_EQ(told({"journal", "1"}), "open sale\nadd CHIPS 1\n");
    const RunResult second = run({"--db", database()}, "show\n");
    EXPECT_EQ(second.status, 3);
    EXPECT_THAT(second.err, HasSubstr("another till has this database open"));
    endRegister(till, "add BAG\nexpect total 164.90\n");
}

TEST_F(Export, Progress_IsForTerminals)
{
    sellMany(10);
    const QString command = "'" TILL_PROGRAM "' --db '" + database() + "' receipts --json ";
    const auto seen = [&](const QString &rest) {
        Terminal terminal("/bin/sh", {"-c", (command + rest + "; echo end").toStdString()},
                          directory.path().toStdString());
        return terminal.readTo("end\r\n");
    };
    EXPECT_THAT(seen("> " + path("out")), HasSubstr("\r 50 %  5 / 10\r"));
    EXPECT_THAT(seen("> " + path("out")), HasSubstr("\r100 %  10 / 10\r"));
    EXPECT_EQ(contents(path("out")).count('\n'), 10);
    EXPECT_THAT(seen(""), Not(HasSubstr(" 50 %")));
    EXPECT_EQ(lookUp({"receipts", "--json"}).err, "");
}

TEST_F(Export, FullDisk_EndsTheExport)
{
    sellMany(100);
    const RunResult failed =
        runInShell("exec \"$@\" > /dev/full", {"--db", database(), "receipts", "--json"});
    EXPECT_EQ(failed.status, 3);
    EXPECT_THAT(failed.err, HasSubstr("No space left"));
}

} // namespace
