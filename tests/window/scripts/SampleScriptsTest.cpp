// The sample scripts played by clicks do what the program does with them.

#include "tests/window/scripts/ScriptWindow.h"

#include "tests/window/support/TracedCourse.h"

#include <QtCore/QDir>

namespace till {

namespace {

class SampleScripts : public ScriptWindow
{
protected:
    static QStringList samples()
    {
        const QDir folder(TILL_SHARE_DIR "/scripts", "*.till");
        QStringList paths;
        const QStringList names = folder.entryList();
        for (const QString &name : names)
            paths.append(folder.filePath(name));
        return paths;
    }

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
    ASSERT_GE(samples().size(), 12);
    for (const QString &sample : samples()) {
        start({":memory:", setup().catalogue, setup().plugin, {}, {}});
        const QStringList byProgram = told([&] {
            Script script;
            must(script.read(sample));
            EXPECT_EQ(faultText(script.play(*commands, [](const QString &) {})), QString());
        });
        start({":memory:", setup().catalogue, setup().plugin, {}, {}});
        ScriptPanel played(*till, notes, *translator);
        played.chooseScript = [&sample](QWidget *, const QString &) { return sample; };
        putUp(played);
        const QStringList byClicks = told([&] {
            click("scriptOpen");
            runAll("Выполнить");
        });
        ASSERT_EQ(byClicks.size(), byProgram.size()) << sample.toStdString();
        for (qsizetype line = 0; line < byProgram.size(); ++line)
            EXPECT_EQ(byClicks[line], byProgram[line]) << sample.toStdString();
        EXPECT_GT(byProgram.size(), 10);
    }
}

} // namespace

} // namespace till
