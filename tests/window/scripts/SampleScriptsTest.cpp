// The sample scripts played by clicks do what the program does with them.

#include "tests/window/scripts/ScriptWindow.h"

#include "tests/till/support/SampleScripts.h"
#include "tests/window/support/TracedCourse.h"

namespace till {

namespace {

class SampleScripts : public ScriptWindow
{
protected:
    //! What is told by \a play.
    QStringList told(const std::function<void()> &play)
    {
        heard.clear();
        play();
        return tracedCourse(heard);
    }
};

TEST_F(SampleScripts, PlayedByClicks_GiveTheTraceOfTheProgram)
{
    const QList<SampleScript> samples = sampleScripts();
    ASSERT_GE(samples.size(), 12);
    for (const SampleScript &sample : samples) {
        start({":memory:", setup().catalogue, setup().plugin, {}, {}});
        const QStringList byProgram = told([&] {
            Script script;
            must(script.read(sample.path));
            EXPECT_EQ(faultText(script.play(*commands, [](const QString &) {})), QString());
        });
        start({":memory:", setup().catalogue, setup().plugin, {}, {}});
        ScriptPanel played(*till, notes, *translator);
        played.chooseScript = [&sample](QWidget *, const QString &) { return sample.path; };
        putUp(played);
        const QStringList byClicks = told([&] {
            click("scriptOpen");
            runAll("Выполнить");
        });
        ASSERT_EQ(byClicks.size(), byProgram.size()) << sample.name().toStdString();
        for (qsizetype line = 0; line < byProgram.size(); ++line)
            EXPECT_EQ(byClicks[line], byProgram[line]) << sample.name().toStdString();
        EXPECT_GT(byProgram.size(), 10);
    }
}

} // namespace

} // namespace till
