#include "tests/till/console/ProgramFixture.h"

#include <sys/resource.h>

namespace {

using testing::HasSubstr;

class ShortDevice : public ProgramTest
{
protected:
    //! A run that can write no more than a few bytes to any file.
    RunResult limited(const QStringList &arguments, const QByteArray &input = {})
    {
        QProcess process;
        process.setChildProcessModifier([] {
            const rlimit little{30, 30};
            setrlimit(RLIMIT_FSIZE, &little);
        });
        start(process, arguments);
        process.write(input);
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished(patience));
        return {process.exitCode(), process.readAllStandardOutput().toStdString(),
                process.readAllStandardError().toStdString()};
    }
};

TEST_F(ShortDevice, TraceThatTakesAPartOfALine_TellsWhy)
{
    const RunResult traced = limited({"--trace", path("t"), "--db", ":memory:"});
    EXPECT_EQ(traced.status, 3);
    EXPECT_THAT(traced.err, HasSubstr("/t: File too large\n"));
}

TEST_F(ShortDevice, UpdatedScript_IsLeftAsItIs)
{
    const QString one = write("s.till", "open\nadd CAN3\nexpect positions 2\nexpect total 1\n");
    const QByteArray before = contents(one);
    const RunResult updated = limited({"--trace", "/dev/null", "play", "--update", one});
    EXPECT_EQ(updated.status, 3);
    EXPECT_THAT(updated.err, HasSubstr("s.till: File too large\n"));
    EXPECT_EQ(contents(one), before);
}

TEST_F(ShortDevice, RecordedScript_IsLeftAsItIs)
{
    const QString kept = path("kept.till");
    const QByteArray save = "save \"" + kept.toUtf8() + "\"\n";
    EXPECT_EQ(run({"--db", ":memory:"}, "open\nadd CAN3\n" + save).status, 0);
    const QByteArray before = contents(kept);
    const RunResult saved = limited({"--db", ":memory:"}, "open\nadd CHIPS\n" + save);
    EXPECT_EQ(saved.status, 1);
    EXPECT_THAT(saved.err, HasSubstr("kept.till: File too large\n"));
    EXPECT_EQ(contents(kept), before);
}

} // namespace
