#include "tests/support/Chance.h"
#include "tests/till/support/FolderTest.h"
#include "window/course/CourseModel.h"

#include <QtCore/QJsonArray>
#include <QtTest/QAbstractItemModelTester>

#include <optional>
#include <random>

namespace till {

namespace {

//! Notes that no register tells.
class HostileNotes : public FolderTest
{
protected:
    //! Tells a note so deep.
    void tell(const char *kind, int depth, const QJsonObject &fields = {})
    {
        if (depth == 0)
            return notes.add(kind, fields);
        const Notes::Nesting inside(notes);
        tell(kind, depth - 1, fields);
    }
    qsizetype lines() const
    {
        QModelIndexList rows;
        for (int row = 0; row < model.rowCount(); ++row)
            rows.append(model.index(row, 0));
        return model.json(rows).count('\n');
    }

    Notes notes;
    CourseModel model{notes, Translator("en"), {1000, 100000}};
    QAbstractItemModelTester tester{&model,
                                    QAbstractItemModelTester::FailureReportingMode::Warning};
};

TEST_F(HostileNotes, EndWithoutABeginning_StandsByItself)
{
    for (const char *kind : {"outcome", "result", "answer", "trigger"})
        tell(kind, 0);
    EXPECT_EQ(model.rowCount(), 4);
    EXPECT_EQ(lines(), 4);
}

TEST_F(HostileNotes, UnknownKind_IsCalledByItsName)
{
    tell("weather", 0);
    EXPECT_EQ(model.index(0, 0).data().toString(), "weather");
}

TEST_F(HostileNotes, TextThatSteers_IsShownInOneLine)
{
    tell("log", 0, {{"text", "a\nb\x1b[2Jc\u202e"}});
    EXPECT_EQ(model.index(0, 0).data().toString(), "log: a b [2Jc");
}

TEST_F(HostileNotes, MalformedPluginData_SayNothingOfTara)
{
    tell("data", 0, {{"plugin", "PackagingControl"}, {"key", "taraInfo"}, {"value", 7}});
    tell("data", 0,
         {{"plugin", "PackagingControl"},
          {"key", "packagingInfo"},
          {"parts", QJsonArray{QJsonObject{{"at", -5}, {"removed", 900}}, 3}}});
    EXPECT_EQ(model.index(0, 0).data().toString(), "data of PackagingControl: taraInfo");
    EXPECT_EQ(model.index(1, 0).data().toString(), "data of PackagingControl: packagingInfo");
}

TEST_F(HostileNotes, AnyOrderOfNotes_KeepsEachOnce)
{
    SCOPED_TRACE(repeatedBy(testSeed()));
    static const std::vector<const char *> kinds{
        "command",  "outcome", "action", "result", "event",   "trigger",  "log",
        "question", "answer",  "data",   "script", "verdict", "position", "takeup"};
    std::mt19937 random(static_cast<std::mt19937::result_type>(testSeed()));
    const auto below = [&random](std::size_t end) { return random() % end; };
    constexpr int count = 600;
    for (int i = 0; i < count; ++i)
        tell(kinds[below(kinds.size())], static_cast<int>(below(6)));
    tell("command", 0); // the line of a script waits for it
    EXPECT_EQ(lines(), count + 1);
}

} // namespace

} // namespace till
