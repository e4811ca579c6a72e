#include "window/scripts/ScriptModel.h"

#include "tests/support/Printers.h"
#include "tests/till/support/FolderTest.h"

#include <QtTest/QAbstractItemModelTester>

namespace till {

namespace {

class ScriptLines : public FolderTest
{
protected:
    ScriptLines() { model.show({{"open", "a.till", 1}, {"add X", "b.till", 7}}, "a.till"); }

    QString at(int row, ScriptModel::Column column, int role = Qt::DisplayRole) const
    {
        return model.index(row, column).data(role).toString();
    }

    ScriptModel model{Translator("en")};
    QAbstractItemModelTester tester{&model,
                                    QAbstractItemModelTester::FailureReportingMode::Warning};
};

TEST_F(ScriptLines, IncludedLine_HasTheNameOfItsFile)
{
    EXPECT_EQ(at(0, ScriptModel::Place), "1");
    EXPECT_EQ(at(1, ScriptModel::Place), "b.till:7");
}

TEST_F(ScriptLines, Mark_IsSaidInWords)
{
    model.mark(1, {});
    EXPECT_EQ(at(0, ScriptModel::Mark), "✓");
    EXPECT_EQ(at(0, ScriptModel::Mark, Qt::AccessibleTextRole), "done");
    EXPECT_EQ(at(1, ScriptModel::Mark), "▶");
    EXPECT_EQ(at(1, ScriptModel::Mark, Qt::AccessibleTextRole), "comes next");
}

TEST_F(ScriptLines, FaultWithoutExpectation_SaysItsReason)
{
    ScriptFault fault;
    fault.reason = "stands behind 'quit'";
    model.mark(1, fault);
    EXPECT_EQ(at(0, ScriptModel::Mark), "✗");
    EXPECT_EQ(at(0, ScriptModel::Text), "open\nstands behind 'quit'");
    EXPECT_EQ(at(1, ScriptModel::Mark), "");
}

TEST_F(ScriptLines, Fault_IsSaidInTheLanguage)
{
    ScriptFault fault;
    fault.expected = "total: 1";
    fault.found = "2";
    model.mark(2, fault);
    EXPECT_EQ(at(1, ScriptModel::Text), "add X\nexpected: total: 1\nfound: 2");
    model.translate(Translator("ru"));
    EXPECT_EQ(at(1, ScriptModel::Text), "add X\nожидалось: total: 1\nесть: 2");
    EXPECT_EQ(at(1, ScriptModel::Mark, Qt::AccessibleTextRole), "не выполнено");
}

TEST_F(ScriptLines, TextThatSteers_IsShownAsSpaces)
{
    model.append("say \x1b[2J");
    EXPECT_EQ(at(2, ScriptModel::Text), "say  [2J");
}

} // namespace

} // namespace till
