#include "tests/till/runner/PlayFixture.h"

#include <QtCore/QRegularExpression>

// What became of a run of scripts, for programs.

namespace {

using testing::HasSubstr;
using testing::Not;

class PlayReport : public PlayTest
{
protected:
    //! One of each kind, with names that need care.
    QStringList scripts() const
    {
        return {script("good.till", good), script("a b/<bad> & #1.till", bad),
                script("bytes.till", "\xff"), script("idle.till", "open\n")};
    }
    //! The JUnit XML of a run with \a arguments; it is as the schema says.
    QString junit(const QStringList &arguments, int status = 3) const
    {
        EXPECT_EQ(
            run(QStringList{"--lang", "en", "--junit", path("j.xml"), "play"} + arguments).status,
            status);
        EXPECT_EQ(complaintOfSchema(path("j.xml")), "");
        return QString::fromUtf8(contents(path("j.xml")));
    }
    static std::string complaintOfSchema(const QString &file)
    {
        QProcess xmllint;
        xmllint.start("xmllint", {"--noout", "--nonet", "--schema", DOCS_DIR "/junit.xsd", file});
        EXPECT_TRUE(xmllint.waitForFinished(patience));
        return xmllint.exitCode() == 0 ? "" : xmllint.readAllStandardError().toStdString();
    }
};

TEST_F(PlayReport, Junit_TellsOfEachScript)
{
    const QString xml = junit(scripts()).replace(QRegularExpression("time=\"[0-9.]+\""), "time");
    EXPECT_THAT(xml.toStdString(),
                HasSubstr("<testsuite name=\"till play\" tests=\"4\" failures=\"1\" "
                          "errors=\"1\" skipped=\"0\" time>"));
    const std::string at = path("").toStdString();
    EXPECT_THAT(xml.toStdString(),
                HasSubstr("<testcase name=\"good.till\" classname=\"" + at + "\" file=\"" + at
                          + "/good.till\" assertions=\"2\" time/>"));
    EXPECT_THAT(xml.toStdString(),
                HasSubstr("name=\"&lt;bad&gt; &amp; #1.till\" classname=\"" + at + "/a b\""));
    EXPECT_THAT(xml.toStdString(),
                HasSubstr("#1.till:2: add CHOPS: no article &quot;CHOPS&quot; in the "
                          "catalogue; did you mean 'CHIPS'?\" type=\"failed\">"));
    EXPECT_THAT(xml.toStdString(),
                HasSubstr("<system-out>&gt; open\n&gt; add CHOPS\n</system-out>"));
    EXPECT_THAT(xml.toStdString(), HasSubstr("bytes.till: not UTF-8 text\" type=\"wrong\">"));
    EXPECT_THAT(xml.toStdString(),
                HasSubstr("<system-out>checks nothing, as it expects nothing</system-out>"));
}

TEST_F(PlayReport, JunitOfStoppedRun_SkipsTheRest)
{
    const QString xml = junit(QStringList{"--stop", "--jobs", "2"} + scripts(), 1);
    EXPECT_THAT(xml.toStdString(),
                HasSubstr("tests=\"4\" failures=\"1\" errors=\"0\" skipped=\"2\""));
    EXPECT_EQ(xml.count("<skipped/>"), 2);
}

TEST_F(PlayReport, JunitOfACrash_HasWhatThePluginSaid)
{
    const QString xml =
        junit({"--plugin", FAULTY_PLUGIN, script("s.till", "open\nadd CHIPS 11\n")}, 1);
    EXPECT_THAT(xml.toStdString(),
                HasSubstr("s.till:2: add CHIPS 11: crashed: SIGSEGV\" type=\"failed\""));
    EXPECT_THAT(xml.toStdString(), HasSubstr("<system-err>the plugin's last words\n</system-err>"));
}

TEST_F(PlayReport, JunitWithColoursAndATrace_IsPlainXml)
{
    const QString failing =
        script("s.till", "open\nadd CHIPS\nshow\nsay \x01\xef\xbf\xbf]]>\nexpect total 1\n");
    EXPECT_FALSE(junit({"--colour", "always", failing}, 1).contains("[1m"));
    EXPECT_THAT(junit({"--trace", path("t"), failing}, 1).toStdString(),
                HasSubstr("failures=\"1\""));
}

TEST_F(PlayReport, SchemaOfJunit_RefusesOtherXml)
{
    const QString other = write("o.xml", "<testsuites><testsuite name='x'/></testsuites>");
    EXPECT_THAT(complaintOfSchema(other), HasSubstr("'tests' is required"));
}

TEST_F(PlayReport, JunitFileThatIsNone_IsLeft)
{
    const QString one = script("s.till", good);
    const QString letter = write("letter", "Dear shop,\n");
    for (const QString &file : {one, letter}) {
        const QByteArray before = contents(file);
        const RunResult refused = run({"--junit", file, "play", one});
        EXPECT_EQ(refused.status, 2);
        EXPECT_THAT(refused.err, HasSubstr("till: --junit: " + file.toStdString()));
        EXPECT_EQ(contents(file), before);
    }
    EXPECT_NE(junit({one}, 0), junit({one, one}, 0)); // which takes the place of the one before
}

TEST_F(PlayReport, JunitFileThatCannotBeWritten_Is3)
{
    const QString one = script("s.till", good);
    const RunResult missing = run({"--junit", "/nowhere/j.xml", "play", one});
    EXPECT_EQ(missing.status, 3);
    EXPECT_EQ(missing.out, "");
    EXPECT_EQ(missing.err, "till: /nowhere/j.xml: No such file or directory\n");
    const RunResult full = run({"--junit", "/dev/full", "play", one});
    EXPECT_EQ(full.status, 3);
    EXPECT_EQ(full.err, "till: /dev/full: No space left on device\n");
}

TEST_F(PlayReport, Tap_TellsOfEachScriptAndNothingElse)
{
    const RunResult told = run(QStringList{"--lang", "en", "--tap", "play"} + scripts());
    EXPECT_EQ(told.status, 3);
    const std::string at = path("").toStdString();
    EXPECT_EQ(told.out, "TAP version 13\n1..4\nok 1 - " + at
                            + "/good.till\n"
                              "not ok 2 - "
                            + at
                            + "/a b/<bad> & \\#1.till\n"
                              "# failed    "
                            + at
                            + "/a b/<bad> & #1.till:2\n"
                              "# command   add CHOPS\n"
                              "# expected  accepted\n"
                              "# found     no article \"CHOPS\" in the catalogue; did you mean "
                              "'CHIPS'?\n"
                              "not ok 3 - "
                            + at
                            + "/bytes.till\n"
                              "# wrong     "
                            + at
                            + "/bytes.till\n"
                              "# found     not UTF-8 text\n"
                              "ok 4 - "
                            + at
                            + "/idle.till\n"
                              "# checks nothing, as it expects nothing\n");
}

TEST_F(PlayReport, TapOfStoppedRun_BailsOut)
{
    const RunResult told = run(QStringList{"--lang", "en", "--tap", "--stop", "play"} + scripts());
    EXPECT_THAT(told.out, HasSubstr("\nBail out! "));
    EXPECT_THAT(told.out, Not(HasSubstr("not ok 3")));
}

TEST_F(PlayReport, TapWithATraceOnStandardOutput_IsRefused)
{
    const RunResult refused = run({"--tap", "--trace", "-", "play", script("s.till", good)});
    EXPECT_EQ(refused.status, 2);
    EXPECT_EQ(refused.err, "till: --tap: standard output is for the trace\n");
}

} // namespace
