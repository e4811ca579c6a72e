#include "tests/till/support/FolderTest.h"
#include "tests/till/support/Results.h"
#include "till/course/Trace.h"

#include <QtCore/QJsonDocument>

// Traces come and go without each other's knowledge.

namespace till {

namespace {

class TwoTraces : public FolderTest
{
protected:
    std::unique_ptr<Trace> started(const QString &name)
    {
        return must(Trace::start(notes, path(name)));
    }

    //! The lines of a trace: their numbers and kinds.
    QStringList lines(const QString &name) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QStringList found;
        while (!file.atEnd()) {
            const QJsonObject note = QJsonDocument::fromJson(file.readLine()).object();
            found.append(QString::number(note.value("line").toInt()) + ' '
                         + note.value("kind").toString());
        }
        return found;
    }

    void happens()
    {
        notes.add("action", {});
        notes.addState("position", {});
    }

    Notes notes;
};

TEST_F(TwoTraces, AtOnce_BothHaveEverything)
{
    const auto a = started("a");
    const auto b = started("b");
    happens();
    EXPECT_EQ(lines("a"), QStringList({"1 action", "2 position"}));
    EXPECT_EQ(lines("b"), lines("a"));
}

TEST_F(TwoTraces, EndOfOne_LeavesTheOtherItsStates)
{
    auto a = started("a");
    const auto b = started("b");
    happens();
    a.reset();
    happens();
    EXPECT_EQ(lines("a"), QStringList({"1 action", "2 position"}));
    EXPECT_EQ(lines("b"), QStringList({"1 action", "2 position", "3 action", "4 position"}));
}

TEST_F(TwoTraces, LaterOne_BeginsAtItsOwnFirstLine)
{
    const auto a = started("a");
    happens();
    const auto b = started("b");
    happens();
    EXPECT_EQ(lines("a").size(), 4);
    EXPECT_EQ(lines("b"), QStringList({"1 action", "2 position"}));
}

} // namespace

} // namespace till
