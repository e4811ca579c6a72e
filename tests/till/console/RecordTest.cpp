#include "tests/till/console/ProgramFixture.h"

#include <QtCore/QDir>

// What is done at the register, recorded, and scripts from traces.

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class Record : public ProgramTest
{
protected:
    RunResult recorded(const QByteArray &input, const QStringList &options = {}) const
    {
        return run(QStringList{"--db", ":memory:", "--lang", "en", "--record", file} + options,
                   input);
    }
    std::string script() const { return contents(file).toStdString(); }
    //! The script must hold.
    void holds(const QString &path) const
    {
        const RunResult played = run({"--lang", "en", "--quiet", "play", path});
        EXPECT_EQ(played.status, 0) << played.err;
        EXPECT_THAT(played.out, HasSubstr("1 of 1 scripts held"));
    }

    const QString file = path("recorded.till");
    const QByteArray twoReceipts = "open\nadd PET1\nadd BEER 0,5\nqty 2 0,75\npay\n"
                                   "open\nadd CHIPS\nrestart\nanswer yes\ncancel\n";
};

TEST_F(Record, EveryReceipt_IsInAScriptThatHolds)
{
    const RunResult done = recorded(twoReceipts);
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.err, "");
    EXPECT_THAT(done.out,
                EndsWith("\n" + file.toStdString() + ": 8 command(s), 42 expectation(s)\n"));
    EXPECT_THAT(script(), StartsWith("# Recorded by the till.\n"
                                     "set PackagingControl:allowSaleEmptyTara true\nopen sale\n"));
    EXPECT_THAT(script(), HasSubstr("\nadd CHIPS 1\n"));
    holds(file);
}

TEST_F(Record, SettingsOfTheProgram_AreInTheScript)
{
    recorded("open\n", {"--set", "PackagingControl:allowSaleEmptyTara=false"});
    EXPECT_THAT(script(),
                HasSubstr("\nset PackagingControl:allowSaleEmptyTara false\nopen sale\n"));
}

TEST_F(Record, Quietly_NothingIsPrinted)
{
    EXPECT_EQ(recorded(twoReceipts, {"--quiet"}).out, "");
}

TEST_F(Record, RecordedScript_IsReplaced)
{
    recorded("open\nadd CHIPS\n");
    EXPECT_EQ(recorded("open\nadd BAG\n").status, 0);
    EXPECT_THAT(script(), Not(HasSubstr("CHIPS")));
}

TEST_F(Record, OtherFile_IsRefusedAndLeft)
{
    overwrite(file, "open\n");
    const RunResult done = recorded(twoReceipts);
    EXPECT_EQ(done.status, 2);
    EXPECT_EQ(done.err, "till: --record: " + file.toStdString()
                            + " is there already and is no recorded script; name another file\n");
    EXPECT_EQ(script(), "open\n");
}

TEST_F(Record, RecordedScriptThatWasChanged_IsRefusedAndLeft)
{
    recorded("open\nadd CHIPS\n");
    const QByteArray changed = contents(file).replace("CHIPS", "BAG");
    overwrite(file, changed);
    const RunResult done = recorded(twoReceipts);
    EXPECT_EQ(done.status, 2);
    EXPECT_EQ(done.err, "till: --record: " + file.toStdString()
                            + " was changed since it was recorded, or not recorded to its end; "
                              "name another file, or remove this one\n");
    EXPECT_EQ(contents(file), changed);
}

TEST_F(Record, Dash_IsNoFile)
{
    const RunResult done = run({"--db", ":memory:", "--record", "-"}, "open\n");
    EXPECT_EQ(done.status, 2);
    EXPECT_EQ(done.err, "till: --record: - a script is saved to a file; ./- is one of that name\n");
}

TEST_F(Record, SaveToAStandardStream_IsRefused)
{
    const RunResult done = run({"--db", ":memory:", "--lang", "en"}, "open\nsave /dev/stdout\n");
    EXPECT_EQ(done.status, 1);
    EXPECT_THAT(done.err, EndsWith("/dev/stdout: is no file of its own; name another file\n"));
    const RunResult played =
        run({"--lang", "en", "play", write("s.till", "open\nsave /dev/stdout\n")});
    EXPECT_EQ(played.status, 1);
    EXPECT_THAT(played.err, HasSubstr("/dev/stdout: is no file of its own; name another file\n"));
}

TEST_F(Record, FileInUse_IsRefused)
{
    const RunResult done = run({"--db", database(), "--record", database()});
    EXPECT_EQ(done.status, 2);
    EXPECT_THAT(done.err, HasSubstr("is a file that the till uses"));
    EXPECT_EQ(run({"--trace", file, "--record", file}).status, 2);
}

TEST_F(Record, Play_IsNot)
{
    const RunResult done = run({"--record", file, "play", write("s.till", "open\n")});
    EXPECT_EQ(done.status, 2);
    EXPECT_EQ(done.err, "till: --record: what is done at the register is recorded, nothing else\n");
    EXPECT_EQ(run({"--record", ""}).status, 2);
}

TEST_F(Record, FileThatCannotBeWritten_IsTold)
{
    RunResult done = run({"--db", ":memory:", "--record", path("no/folder")}, "open\n");
    EXPECT_EQ(done.status, 3);
    EXPECT_EQ(done.err,
              "till: " + path("no/folder").toStdString() + ": No such file or directory\n");
    done = run({"--db", ":memory:", "--record", "/dev/full"}, "open\n");
    EXPECT_EQ(done.status, 3);
    EXPECT_EQ(done.err, "till: /dev/full: No space left on device\n");
}

TEST_F(Record, ReceiptThatWasTakenUp_IsSaidToBeLeftOut)
{
    run({"--db", database()}, "open\n");
    const RunResult done = run({"--db", database(), "--lang", "en", "--record", file},
                               "add CHIPS\nadd BAG\npay\nsubtotal\nopen\nadd BAG\n");
    EXPECT_EQ(done.status, 1);
    const std::string before = "the receipt was opened before this begins: ";
    EXPECT_THAT(done.err, EndsWith("till: " + file.toStdString() + ": a script cannot say: "
                                   + before + "add CHIPS 1; and 3 more, as it tells\n"));
    EXPECT_THAT(script(), HasSubstr("# " + before + "add CHIPS 1\n"));
    holds(file);
}

TEST_F(Record, KilledTill_LeavesWhatWasDone)
{
    QProcess till;
    start(till, {"--db", ":memory:", "--record", file});
    till.write("open\nadd CAN3\nshow\n");
    QByteArray shown;
    while (!shown.contains("CAN3") && till.waitForReadyRead(patience))
        shown += till.readAllStandardOutput();
    ASSERT_TRUE(shown.contains("CAN3"));
    till.kill();
    EXPECT_TRUE(till.waitForFinished(patience));
    EXPECT_THAT(script(), HasSubstr("\nexpect tara 1 capacity 3 free 3\n"));
    holds(file);
}

class FromTrace : public Record
{
protected:
    RunResult fromTrace(const QString &trace) const
    {
        return run({"--lang", "en", "from-trace", trace});
    }
};

TEST_F(FromTrace, Script_IsAsItWouldHaveBeenRecorded)
{
    recorded(twoReceipts, {"--trace", path("trace")});
    const RunResult done = fromTrace(path("trace"));
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.err, "");
    EXPECT_EQ(done.out, script());
    EXPECT_EQ(run({"from-trace", "-"}, contents(path("trace"))).out, done.out);
}

TEST_F(FromTrace, SampleScripts_HoldAsOne)
{
    run({"--quiet", "--trace", path("trace"), "demo"});
    const RunResult done = fromTrace(path("trace"));
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.err, "");
    holds(write("s.till", QByteArray::fromStdString(done.out)));
}

TEST_F(FromTrace, TillThatWasKilled_EndsWithTheCommandUnderWay)
{
    recorded("open\nadd CAN3\n", {"--trace", path("trace")});
    const QByteArray whole = contents(path("trace"));
    const qsizetype command = whole.indexOf("\"text\":\"add CAN3 1\"");
    ASSERT_GT(command, 0);
    const RunResult done = fromTrace(write("cut", whole.left(command + 200)));
    EXPECT_EQ(done.status, 0);
    EXPECT_THAT(done.out, HasSubstr("\n# The course of things ends within this command:\n"
                                    "add CAN3 1\n# Recorded to here;"));
    holds(write("s.till", QByteArray::fromStdString(done.out)));
}

TEST_F(FromTrace, TraceThatLacksLines_IsNoScript)
{
    recorded("open\nadd CAN3\n", {"--trace", path("trace")});
    const QByteArrayList lines = contents(path("trace")).split('\n');
    const QByteArrayList cut = lines.mid(0, 2) + lines.mid(5);
    for (const QByteArrayList &part : {cut, lines.mid(3), lines.mid(0, 4) + lines}) {
        const RunResult done = fromTrace(write("cut", part.join('\n')));
        EXPECT_EQ(done.status, 3);
        EXPECT_EQ(done.out, "");
        EXPECT_THAT(done.err, HasSubstr(": lines of the trace are missing before this one"));
    }
}

TEST_F(FromTrace, PluginThatCrashed_CrashesInTheScript)
{
    const RunResult crashed = recorded("open\nadd CHIPS\nadd CHIPS 11\n",
                                       {"--plugin", FAULTY_PLUGIN, "--trace", path("trace")});
    EXPECT_EQ(crashed.status, -1);
    EXPECT_THAT(script(), EndsWith("\nexpect total 129.90\n"));
    const QString traced = write("s.till", QByteArray::fromStdString(fromTrace(path("trace")).out));
    EXPECT_THAT(run({"--lang", "en", "--plugin", FAULTY_PLUGIN, "play", traced}).err,
                EndsWith(": add CHIPS 11: crashed: SIGSEGV\n"));
}

TEST_F(FromTrace, WhatIsNoTrace_IsTold)
{
    const QString other = write("other", "{\"line\":1,\"kind\":\"start\"}\nopen\n{}\n");
    EXPECT_EQ(fromTrace(other).status, 3);
    EXPECT_EQ(fromTrace(other).out, "");
    EXPECT_EQ(fromTrace(other).err, "till: " + other.toStdString() + ":2: no line of a trace\n");
    const QString empty = write("empty", "");
    EXPECT_EQ(fromTrace(empty).err, "till: " + empty.toStdString() + ": an empty trace\n");
    EXPECT_EQ(fromTrace(path("nothing")).status, 3);
    EXPECT_EQ(run({"from-trace"}).status, 2);
}

TEST_F(FromTrace, WhatAScriptCannotSay_IsTold)
{
    const RunResult done =
        fromTrace(write("t", "{\"line\":1,\"kind\":\"start\"}\n"
                             "{\"line\":2,\"kind\":\"command\",\"text\":\"open sale\"}\n"
                             "{\"line\":3,\"kind\":\"takeup\",\"id\":0}\n"
                             "{\"line\":4,\"kind\":\"outcome\",\"outcome\":\"failed\"}\n"));
    EXPECT_EQ(done.status, 1);
    EXPECT_EQ(done.err, "till: " + path("t").toStdString()
                            + ": a script cannot say: could not be done: open sale\n");
    EXPECT_THAT(done.out, HasSubstr("# could not be done: open sale\n"));
}

} // namespace
