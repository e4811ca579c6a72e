#include "tests/till/console/ProgramFixture.h"

// Files that the program cannot use: exit status 3 and an error that says which and why.

namespace {

using testing::HasSubstr;
using testing::StartsWith;

class Start : public ProgramTest
{
protected:
    //! Opens the register, which must fail for \a file.
    void fails(const QStringList &arguments, const QString &file, const char *reason) const
    {
        for (const QStringList &mode : {QStringList(), {"play", write("s.till", "say\n")}}) {
            const RunResult failed = run(arguments + mode);
            EXPECT_EQ(failed.status, 3);
            EXPECT_THAT(failed.err, StartsWith("till: "));
            EXPECT_THAT(failed.err, HasSubstr(file.toStdString()));
            EXPECT_THAT(failed.err, HasSubstr(reason));
            EXPECT_EQ(std::count(failed.err.begin(), failed.err.end(), '\n'), 1) << failed.err;
        }
    }

    //! A database with a receipt; its bytes.
    QByteArray made() const
    {
        EXPECT_EQ(run({"--db", database()}, "open\nadd CHIPS\n").status, 0);
        return contents(database());
    }
};

TEST_F(Start, MissingPlugin_IsNamed)
{
    fails({"--plugin", "/nowhere/P.so"}, "/nowhere/P.so", "no such file");
}

TEST_F(Start, BrokenPlugin_IsNamed)
{
    const QString text = write("P.so", "no library at all\n");
    fails({"--plugin", text}, text, "expected a shared library");
    EXPECT_EQ(run({"info", "--plugin", text}).status, 3);
}

TEST_F(Start, MissingCatalogue_IsNamed)
{
    fails({"--catalogue", "/nowhere/c.csv"}, "/nowhere/c.csv", "no such file");
}

TEST_F(Start, BadRow_IsNamedWithLineAndColumn)
{
    const QString catalogue = write("c.csv", "code;name;price;tara mode;tara capacity;pack;unit\n"
                                             "A;A;1;0;;1;pc\nB;B;dear;0;;1;pc\n");
    fails({"--catalogue", catalogue}, catalogue + ":3: column 3", "\"dear\"");
}

TEST_F(Start, PluginThatIsNotReady_IsNamed)
{
    fails({"--plugin", NOT_READY_PLUGIN}, NOT_READY_PLUGIN, "init() answers false");
}

TEST_F(Start, MissingSettings_AreNamed)
{
    fails({"--config", "/nowhere/s.ini"}, "/nowhere/s.ini", "");
}

TEST_F(Start, MissingScript_IsNamed)
{
    const RunResult failed = run({"play", "/nowhere/s.till"});
    EXPECT_EQ(failed.status, 3);
    EXPECT_EQ(failed.err, "till: /nowhere/s.till: No such file or directory\n");
}

TEST_F(Start, DatabaseOfAnotherVersion_IsRefusedAndLeft)
{
    QByteArray bytes = made();
    bytes[63] = 99; // the last byte of the version, as the file format has it
    write("till.sqlite", bytes);
    fails({"--db", database()}, database(), "version");
    EXPECT_EQ(contents(database()), bytes);
}

TEST_F(Start, DamagedDatabase_IsRefusedAndLeft)
{
    QByteArray bytes = made();
    bytes.replace(4096, 4096, QByteArray(4096, '\x55'));
    write("till.sqlite", bytes);
    fails({"--db", database()}, database(), "damaged");
    EXPECT_EQ(contents(database()), bytes);
}

TEST_F(Start, OtherFile_IsRefusedAndLeft)
{
    const QString other = write("letter.txt", "Dear shop,\n" + QByteArray(2000, '.'));
    const QByteArray before = contents(other);
    fails({"--db", other}, other, "not a database of the till");
    EXPECT_EQ(contents(other), before);
}

TEST_F(Start, ReadOnlyPlace_IsRefused)
{
    // Nobody, not even root, makes files there.
    fails({"--db", "/proc/till.sqlite"}, "/proc/till.sqlite", "cannot be");
}

TEST_F(Start, SecondTillOnOneFile_IsRefusedAndTheFirstGoesOn)
{
    QProcess first;
    start(first, {"--db", database()});
    first.write("open\nadd CHIPS\nsay ready\n");
    QByteArray said;
    while (!said.contains("ready") && first.waitForReadyRead(60'000))
        said += first.readAllStandardOutput();
    ASSERT_TRUE(said.contains("ready"));

    fails({"--db", database()}, database(), "another till has this database open");

    first.write("add BAG\nexpect total 164.90\n");
    first.closeWriteChannel();
    ASSERT_TRUE(first.waitForFinished(60'000));
    EXPECT_EQ(first.exitCode(), 0);
    EXPECT_EQ(run({"--db", database()}, "expect total 164.90\n").status, 0);
}

TEST_F(Start, KilledTill_IsTakenUpByTheNext)
{
    QProcess killed;
    start(killed, {"--db", database()});
    killed.write("open\nadd CAN3\nadd BEER 2\nsay ready\n");
    QByteArray said;
    while (!said.contains("ready") && killed.waitForReadyRead(60'000))
        said += killed.readAllStandardOutput();
    killed.kill();
    ASSERT_TRUE(killed.waitForFinished(60'000));

    const RunResult next = run({"--db", database()}, "expect goods 2 in 1 2\nqty 2 3\n");
    EXPECT_EQ(next.status, 0) << next.out;
    EXPECT_THAT(next.out, HasSubstr("Чек № 1 · открыт"));
}

TEST_F(Start, Trace_ThatCannotBeMade_IsNamed)
{
    fails({"--trace", "/nowhere/t"}, "/nowhere/t", "No such file");
}

TEST_F(Start, Trace_OnAFullDisk_IsReported)
{
    const RunResult full = run({"--trace", "/dev/full", "play", write("s.till", "open\n")});
    EXPECT_EQ(full.status, 3);
    EXPECT_EQ(full.err, "till: /dev/full: No space left on device\n");
}

} // namespace
