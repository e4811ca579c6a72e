#include "tests/till/runner/PlayFixture.h"

#include <QtCore/QFile>

#include <csignal>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

// Scripts in processes of their own, whatever becomes of these.

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

//! With a plugin that goes wrong when it is told so many pieces.
class PlayOfFaulty : public PlayTest
{
protected:
    QString adding(int pieces) const
    {
        return script(QString("%1.till").arg(pieces),
                      "open\nexpect accepted add CHIPS " + QByteArray::number(pieces) + '\n');
    }
    RunResult played(const QStringList &arguments) const
    {
        return PlayTest::played(QStringList{"--plugin", FAULTY_PLUGIN} + arguments);
    }
};

TEST_F(PlayOfFaulty, Crash_FailsItsScriptAloneWithItsSignal)
{
    const RunResult failed = played({"--jobs", "2", adding(1), adding(11), adding(12), adding(2)});
    EXPECT_EQ(failed.status, 1);
    EXPECT_THAT(failed.out, HasSubstr("failed    " + path("11.till").toStdString()
                                      + ":2\n"
                                        "command   add CHIPS 11\n"
                                        "expected  accepted\n"
                                        "found     crashed: SIGSEGV\n"));
    EXPECT_THAT(failed.out, HasSubstr("found     crashed: SIGABRT\n"));
    EXPECT_THAT(failed.out, EndsWith("2 of 4 scripts held, 2 failed; expectations: 4\n"));
    const std::string at = "till: " + path("").toStdString();
    EXPECT_EQ(failed.err, "the plugin's last words\n" + at
                              + "/11.till:2: add CHIPS 11: crashed: SIGSEGV\n" + at
                              + "/12.till:2: add CHIPS 12: crashed: SIGABRT\n");
}

TEST_F(PlayOfFaulty, Hang_IsEndedAndTheOthersArePlayed)
{
    const RunResult failed =
        played({"--jobs", "2", "--timeout", "1", adding(13), adding(13), adding(13)});
    EXPECT_EQ(failed.status, 1);
    EXPECT_THAT(failed.err, HasSubstr(": hangs: ended by SIGKILL after 1 s\n"));
    EXPECT_THAT(failed.out, HasSubstr("\n0 of 3 scripts held, 3 failed"));
}

TEST_F(PlayOfFaulty, ExitInAPlugin_IsNoGoodEnd)
{
    const RunResult failed = played({adding(14), adding(2)});
    EXPECT_EQ(failed.status, 1);
    EXPECT_THAT(failed.err,
                HasSubstr("add CHIPS 14: the process ended with status 0 before the script\n"));
    EXPECT_THAT(failed.out, EndsWith("1 of 2 scripts held, 1 failed; expectations: 2\n"));
}

TEST_F(PlayOfFaulty, CourseBeforeACrash_IsShown)
{
    const RunResult failed = run({"--plugin", FAULTY_PLUGIN, "play", adding(11)});
    EXPECT_THAT(failed.out, HasSubstr("> open\n> add CHIPS 11\n"));
}

TEST_F(PlayOfFaulty, TracedPlays_AreApartToo)
{
    const RunResult failed = played({"--trace", path("t"), adding(14), adding(2)});
    EXPECT_EQ(failed.status, 1);
    EXPECT_THAT(failed.err, HasSubstr("ended with status 0 before the script\n"));
    EXPECT_THAT(failed.out, EndsWith("1 of 2 scripts held, 1 failed; expectations: 2\n"));
    QList<bool> held;
    int line = 0;
    const auto notes = trace(contents(path("t")));
    for (const QJsonObject &note : notes) {
        EXPECT_EQ(note["line"].toInt(), ++line);
        if (note["kind"] == "verdict")
            held.append(note["held"].toBool());
    }
    EXPECT_EQ(held, QList<bool>({false, true}));
}

TEST_F(PlayOfFaulty, TracedHang_IsEndedAndTheOthersArePlayed)
{
    const RunResult failed =
        played({"--trace", path("t"), "--timeout", "1", adding(13), adding(13)});
    EXPECT_EQ(failed.status, 1);
    EXPECT_THAT(failed.err, HasSubstr("hangs: ended by SIGKILL after 1 s\n"));
    EXPECT_THAT(failed.out, HasSubstr("0 of 2 scripts held, 2 failed"));
}

TEST_F(PlayOfFaulty, TraceOnStandardOutput_StandsAlone)
{
    const RunResult failed = run({"--lang", "en", "--plugin", FAULTY_PLUGIN, "--timeout", "1",
                                  "--trace", "-", "play", adding(16)});
    EXPECT_EQ(failed.status, 1);
    EXPECT_EQ(trace(QByteArray::fromStdString(failed.out)).constLast()["kind"], "verdict");
}

TEST_F(PlayOfFaulty, MuchOutput_IsKeptToALimitThatIsSaid)
{
    const RunResult failed = run({"--lang", "en", "--plugin", FAULTY_PLUGIN, "play", adding(17)});
    EXPECT_EQ(failed.status, 1);
    EXPECT_LT(failed.out.size(), 9u << 20);
    EXPECT_THAT(failed.out, HasSubstr("\n… what came behind 8 MiB is left out\n\nfailed "));
}

TEST_F(PlayOfFaulty, ProcessThatThePluginLeft_IsEndedWithItsScript)
{
    const QByteArray alive = QFile::encodeName(path("alive"));
    ASSERT_EQ(mkfifo(alive.constData(), 0600), 0);
    const int held = open(alive.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    EXPECT_EQ(played({adding(15)}).status, 0);
    pollfd ended{held, POLLIN, 0};
    EXPECT_EQ(poll(&ended, 1, patience), 1); // nobody has it open any more
    EXPECT_NE(ended.revents & POLLHUP, 0);
    close(held);
}

//! Somebody who ends a play while a script hangs.
class InterruptedPlay : public PlayOfFaulty
{
protected:
    //! A play with \a arguments before a script that hangs and one more, ended by \a signal.
    RunResult interrupted(int signal, const QStringList &arguments) const
    {
        QProcess process;
        start(process, QStringList{"--plugin", FAULTY_PLUGIN, "--lang", "en", "--quiet"} + arguments
                           + QStringList{"play", adding(1), adding(13), adding(2)});
        QByteArray out;
        while (!out.contains("[2/3]") && !out.contains("ok 1")
               && process.waitForReadyRead(patience))
            out += process.readAllStandardOutput();
        EXPECT_EQ(kill(static_cast<pid_t>(process.processId()), signal), 0);
        EXPECT_TRUE(process.waitForFinished(patience));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return {process.exitCode(), (out + process.readAllStandardOutput()).toStdString(),
                process.readAllStandardError().toStdString()};
    }
};

TEST_F(PlayOfFaulty, Table_IsInTheLanguageOfTheCashier)
{
    const RunResult failed = run({"--quiet", "--plugin", FAULTY_PLUGIN, "play", adding(11)});
    EXPECT_THAT(failed.out, HasSubstr("не прошёл " + path("11.till").toStdString()));
    EXPECT_THAT(failed.out, HasSubstr("\nнайдено   аварийное завершение: SIGSEGV\n"));
    EXPECT_THAT(failed.out, EndsWith("прошло сценариев: 0 из 1, не прошло: 1; проверок: 1\n"));
}

TEST_F(InterruptedPlay, Table_TellsWhatWasPlayed)
{
    for (const auto &[signal, name] : {std::pair(SIGINT, "SIGINT"), {SIGTERM, "SIGTERM"}}) {
        const RunResult ended = interrupted(signal, {"--jobs", "1"});
        EXPECT_EQ(ended.status, 128 + signal);
        EXPECT_THAT(ended.out, HasSubstr("\nnot ended " + path("13.till").toStdString()));
        EXPECT_THAT(ended.out, HasSubstr(std::string("found     interrupted by ") + name + "\n"));
        EXPECT_THAT(ended.out, HasSubstr("\n1 of 3 scripts held, 1 interrupted, 1 not played; "));
        EXPECT_THAT(ended.out, Not(HasSubstr("[3/3]")));
    }
}

TEST_F(InterruptedPlay, JunitAndTap_AreWhole)
{
    const RunResult ended = interrupted(SIGINT, {"--jobs", "1", "--junit", path("j"), "--tap"});
    EXPECT_EQ(ended.status, 130);
    const std::string xml = contents(path("j")).toStdString();
    EXPECT_THAT(xml, HasSubstr("tests=\"3\" failures=\"0\" errors=\"1\" skipped=\"1\""));
    EXPECT_THAT(xml, EndsWith("</testsuites>\n"));
    EXPECT_THAT(ended.out, HasSubstr("\nnot ok 2 - "));
    EXPECT_THAT(ended.out, HasSubstr("\nBail out! "));
}

} // namespace
