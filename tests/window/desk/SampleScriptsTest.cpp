// The sample scripts, played by hands in the window, do what the program does with them.

#include "tests/till/support/SampleScripts.h"
#include "tests/window/support/TracedCourse.h"
#include "tests/window/support/WindowTest.h"
#include "till/script/CommandLine.h"
#include "till/words/RegisterWords.h"
#include "till/words/Words.h"

#include <QtCore/QTextStream>

namespace till {

namespace {

class SampleByHands : public WindowTest, public testing::WithParamInterface<SampleScript>
{
protected:
    till::Setup fresh() const
    {
        till::Setup fresh = setup();
        fresh.database = QStringLiteral(":memory:");
        return fresh;
    }
    //! The lines of the script that do something, also where that is expected to be refused. What
    //! is a mistake cannot be asked for in the window.
    static QList<QStringList> lines()
    {
        QFile file(GetParam().path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QTextStream text(&file);
        QList<QStringList> lines;
        while (!text.atEnd()) {
            QStringList words = must(wordsOf(text.readLine()));
            if (words.value(0) == QLatin1String("expect")
                && QStringList{"accepted", "refused"}.contains(words.value(1)))
                words = words.mid(2);
            if (!words.isEmpty() && !QStringList{"expect", "say", "show"}.contains(words[0]))
                lines.append(words);
        }
        return lines;
    }
    static Result<QStringList> wordsOf(const QString &line)
    {
        const auto words = splitWords(line);
        return words ? Result<QStringList>(*words) : Fault{line, QStringLiteral("no words")};
    }

    void playByHands()
    {
        const QList<QStringList> all = lines();
        for (const QStringList &words : all)
            playByHands(words);
    }
    void playByHands(const QStringList &words)
    {
        if (const auto own = ownStep(words))
            tellCommand(notes, joinWords(words), *own);
        else
            carryOut(must(readCommand(words)));
        QCoreApplication::processEvents();
    }
    //! What a script does beside the cashier's commands, and the window has nothing for.
    std::optional<std::function<Outcome()>> ownStep(const QStringList &words)
    {
        std::function<void()> step;
        if (words[0] == QLatin1String("answer"))
            step = [&] {
                for (const QString &word : words.mid(1))
                    answer({word == QLatin1String("yes")});
            };
        if (words[0] == QLatin1String("set"))
            step = [&] { must(till->set(words[1], words[2])); };
        if (words[0] == QLatin1String("restart"))
            step = [&] {
                must(till->stop());
                must(till->start());
            };
        if (!step)
            return {};
        return [step] {
            step();
            return Outcome::done();
        };
    }
    void playByProgram()
    {
        const Translator translator(QStringLiteral("en"));
        CommandLine program(*till, notes, translator, {}, {[](const QString &) {}, {}});
        const QList<QStringList> all = lines();
        for (const QStringList &words : all)
            program.run(joinWords(words));
    }
    //! What was told of the register since the till was switched on.
    QStringList course() const { return tracedCourse(heard); }
};

TEST_P(SampleByHands, GivesTheTraceOfTheProgram)
{
    open(fresh());
    heard.clear();
    playByProgram();
    const QStringList byProgram = course();
    open(fresh());
    heard.clear();

    playByHands();

    EXPECT_FALSE(byProgram.isEmpty());
    const QStringList byHands = course();
    for (qsizetype line = 0; line < std::min(byHands.size(), byProgram.size()); ++line)
        ASSERT_EQ(byHands[line], byProgram[line]) << "line " << line;
    EXPECT_EQ(byHands.size(), byProgram.size());
}

INSTANTIATE_TEST_SUITE_P(All, SampleByHands, testing::ValuesIn(sampleScripts()), sampleName);

} // namespace

} // namespace till
