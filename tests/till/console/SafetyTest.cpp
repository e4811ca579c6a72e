#include "tests/till/console/ProgramFixture.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

// What must not happen to a person's files and terminal.

namespace {

using testing::HasSubstr;

class TraceFile : public ProgramTest
{
protected:
    QString script(const QString &name = "s.till") { return write(name, "open\nadd CHIPS\n"); }

    //! A trace to \a file is refused, and the file is as it was.
    void isRefused(const QString &file, const QStringList &arguments, const char *reason) const
    {
        const QByteArray before = contents(file);
        const RunResult refused = run(QStringList{"--trace", file} + arguments);
        EXPECT_EQ(refused.status, 2);
        EXPECT_THAT(refused.err, HasSubstr(file.toStdString()));
        EXPECT_THAT(refused.err, HasSubstr(reason));
        EXPECT_EQ(refused.out, "");
        EXPECT_EQ(contents(file), before);
    }

    static constexpr const char *inUse = "is a file that the till uses";
};

TEST_F(TraceFile, Script_IsLeft)
{
    const QString one = script();
    isRefused(one, {"play", script("other.till"), one}, inUse);
}

TEST_F(TraceFile, StandardStream_IsLeft)
{
    const QString trace = path("t");
    run({"--db", ":memory:", "--trace", trace}, "open\n");
    const QByteArray before = contents(trace);
    QProcess process;
    process.setStandardInputFile(trace);
    start(process, {"--db", ":memory:", "--trace", trace});
    ASSERT_TRUE(process.waitForFinished(patience));
    EXPECT_EQ(process.exitCode(), 2);
    EXPECT_THAT(process.readAllStandardError().toStdString(),
                HasSubstr("/t is a standard stream of the till; name another file"));
    EXPECT_EQ(contents(trace), before);
}

TEST_F(TraceFile, Catalogue_IsLeft)
{
    const QString catalogue = write("c.csv", contents(TILL_SHARE_DIR "/catalogue.csv"));
    isRefused(catalogue, {"--catalogue", catalogue}, inUse);
}

TEST_F(TraceFile, Settings_AreLeft)
{
    const QString settings = write("s.ini", "[PackagingControl]\nallowSaleEmptyTara=false\n");
    isRefused(settings, {"--config", settings}, inUse);
}

TEST_F(TraceFile, Database_IsLeftByAnyName)
{
    ASSERT_EQ(run({"--db", database()}, "open\nadd CHIPS\n").status, 0);
    isRefused(database(), {"--db", database()}, inUse);
    ASSERT_TRUE(QFile::link(database(), path("soft")));
    isRefused(path("soft"), {"--db", database()}, inUse);
    ASSERT_EQ(link(QFile::encodeName(database()).constData(),
                   QFile::encodeName(path("hard")).constData()),
              0);
    isRefused(path("hard"), {"--db", database()}, inUse);
}

TEST_F(TraceFile, DatabaseThatIsNotThereYet_IsNotMadeATrace)
{
    ASSERT_TRUE(QFile::link(database(), path("soft")));
    for (const QString &trace : {database(), path("./till.sqlite"), path("soft")}) {
        EXPECT_EQ(run({"--db", database(), "--trace", trace}).status, 2) << trace.toStdString();
        EXPECT_FALSE(QFile::exists(database()));
    }
}

TEST_F(TraceFile, OtherFile_IsLeft)
{
    isRefused(write("letter", "Dear shop,\n"), {"play", script()}, "is no trace");
    isRefused(write("other.json", "{\"line\":2,\"kind\":\"x\"}\n"), {"play", script()},
              "is no trace");
}

TEST_F(TraceFile, TraceOfBefore_IsWrittenAnew)
{
    const QString before = write("trace", "");
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(run({"--trace", before, "play", script()}).status, 0);
        EXPECT_EQ(trace(contents(before)).first().value("line"), 1);
    }
}

class TerminalSafety : public ProgramTest
{
protected:
    //! What a terminal obeys, in whatever encoding it reads.
    static void expectHarmless(const std::string &text)
    {
        static const QRegularExpression controls("(?!\\n)[\\p{Cc}]");
        EXPECT_FALSE(QString::fromStdString(text).contains(controls)) << text;
    }
};

TEST_F(TerminalSafety, WordsOfAScript_DoNotSteer)
{
    const QByteArray evil = "\x1b[2J\x1b[31m\xc2\x9b"
                            "2J\x7f";
    for (const char *const colour : {"never", "always"}) {
        const RunResult said =
            run({"--colour", colour, "play", write("s.till", "say " + evil + "\nopen " + evil)});
        EXPECT_THAT(said.out, HasSubstr("[2J"));
        EXPECT_EQ(said.status, 1);
        expectHarmless(said.out);
        expectHarmless(said.err);
        const RunResult piped = run({"--db", ":memory:", "--colour", colour}, evil + "\n");
        expectHarmless(piped.out + piped.err);
    }
}

TEST_F(TerminalSafety, NamesOfFiles_DoNotSteer)
{
    for (const QStringList &arguments : {QStringList{"play", "/no\x1b[2J"},
                                         {"--db", "/proc/no\x1b[2J/x"},
                                         {"--lang", "\x1b[2J"},
                                         {"--catalogue", "/no\x1b[2J"},
                                         {"--plugin", "/no\x1b[2J"},
                                         {"--\x1b[2J"},
                                         {"\x1b[2J"}}) {
        const RunResult failed = run(arguments);
        EXPECT_NE(failed.status, 0);
        EXPECT_THAT(failed.err, HasSubstr("[2J"));
        expectHarmless(failed.out + failed.err);
    }
}

TEST_F(TerminalSafety, Nul_CutsNothing)
{
    const RunResult said = run({"--db", ":memory:"}, QByteArray("say a\0b\nopn\0end\n", 16));
    EXPECT_THAT(said.out, HasSubstr("a b"));
    EXPECT_THAT(said.out + said.err, HasSubstr("opn end"));
}

TEST_F(TerminalSafety, Catalogue_WithControlCharactersIsRefusedWithTheirPlace)
{
    const QByteArray header = "code;name;price;tara mode;tara capacity;pack;unit\nB;B;1;0;;1;\n";
    const QList<QPair<QByteArray, std::string>> rows{
        {"A\x1b[2J;A;1;0;;1;pc\n", ":3: column 1 \"code\": has the control character U+001b"},
        {"A;A\x7f;1;0;;1;pc\n", ":3: column 2 \"name\": has the control character U+007f"},
        {"A;A;1;0;;1;\xc2\x9bpc\n", ":3: column 7 \"unit\": has the control character U+009b"}};
    for (const auto &[row, place] : rows) {
        const RunResult failed =
            run({"--catalogue", write("c.csv", header + row), "--db", ":memory:"});
        EXPECT_EQ(failed.status, 3);
        EXPECT_THAT(failed.err, HasSubstr(place));
    }
}

TEST_F(TerminalSafety, Trace_HasControlsEscaped)
{
    const RunResult traced =
        run({"--trace", "-", "play", write("s.till", "say \x7f\xc2\x80\xc2\x9f\xc2\xa0.\n")});
    EXPECT_THAT(traced.out, HasSubstr("say \\u007f\\u0080\\u009f\xc2\xa0."));
    expectHarmless(traced.out);
    QStringList texts;
    const auto notes = trace(QByteArray::fromStdString(traced.out));
    for (const QJsonObject &note : notes)
        texts.append(note.value("text").toString());
    EXPECT_TRUE(texts.contains(QString::fromUtf8("say \x7f\xc2\x80\xc2\x9f\xc2\xa0.")));
}

class FullDevice : public ProgramTest
{
protected:
    //! The status of a run whose standard output is full.
    int statusOf(const QStringList &arguments, std::string *error)
    {
        QProcess process;
        process.setStandardOutputFile("/dev/full");
        start(process, arguments);
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished(patience));
        *error = process.readAllStandardError().toStdString();
        return process.exitCode();
    }
};

TEST_F(FullDevice, AsStandardOutput_Is3)
{
    for (const QStringList &arguments :
         {QStringList{"--help"},
          {"--version"},
          {"info"},
          {"demo"},
          {"--trace", path("t"), "play", write("s.till", "say\n")}}) {
        std::string error;
        EXPECT_EQ(statusOf(arguments, &error), 3) << arguments.join(' ').toStdString();
        EXPECT_THAT(error, HasSubstr("standard output: No space left on device"));
    }
}

TEST_F(FullDevice, LimitOfFileSize_FailsInsteadOfKilling)
{
    QProcess process;
    process.setChildProcessModifier([] {
        const rlimit none{0, 0};
        setrlimit(RLIMIT_FSIZE, &none);
    });
    start(process, {"--db", database()});
    process.write("open\n");
    process.closeWriteChannel();
    ASSERT_TRUE(process.waitForFinished(patience));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 3);
}

TEST_F(FullDevice, ReaderOfTheTraceThatGoes_DoesNotStopTheTill)
{
    const QString pipe = path("pipe");
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QProcess process;
    // The trace is more than a pipe holds: the play cannot end while the reader reads no more.
    start(process, {"--lang", "en", "--trace", pipe, "play",
                    write("s.till", "open\n" + QByteArray("add CHIPS\n").repeated(300))});
    QFile trace(pipe);
    ASSERT_TRUE(trace.open(QIODevice::ReadOnly));
    EXPECT_THAT(trace.readLine().toStdString(), HasSubstr("start"));
    trace.close();
    ASSERT_TRUE(process.waitForFinished(patience));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 3);
    EXPECT_THAT(process.readAllStandardOutput().toStdString(), HasSubstr("1 of 1 scripts held"));
    EXPECT_THAT(process.readAllStandardError().toStdString(), HasSubstr("pipe: Broken pipe"));
}

TEST_F(FullDevice, PlayThatIsKilled_LeavesNothingBehind)
{
    ASSERT_TRUE(QDir().mkdir(path("tmp")));
    const QString pipe = path("pipe");
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QProcess process;
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", QFile::encodeName(path("tmp")));
    // The trace is more than a pipe holds: the play cannot end before it is killed.
    start(process, {"--lang", "en", "--trace", pipe, "play",
                    write("s.till", "open\n" + QByteArray("add CHIPS\n").repeated(300))});
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
    QFile trace(pipe);
    ASSERT_TRUE(trace.open(QIODevice::ReadOnly));
    EXPECT_THAT(trace.readLine().toStdString(), HasSubstr("start")); // it plays
    process.kill();
    ASSERT_TRUE(process.waitForFinished(patience));
    EXPECT_EQ(QDir(path("tmp")).entryList(QDir::NoDotAndDotDot | QDir::AllEntries), QStringList());
}

} // namespace
