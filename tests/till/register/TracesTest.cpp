#include "tests/till/support/TillFixture.h"
#include "till/course/RebuiltReceipt.h"
#include "till/course/Trace.h"

#include <QtCore/QFile>
#include <QtCore/QJsonDocument>

// Traces of one till that begin and end at different times.

namespace till {

namespace {

class Traces : public TillTest
{
protected:
    std::unique_ptr<Trace> traced(const QString &name)
    {
        return must(Trace::start(notes, path(name)));
    }

    //! The current receipt, rebuilt from the trace, whose lines have numbers of their own.
    ReceiptRecord rebuilt(const QString &name) const
    {
        RebuiltReceipt rebuilt;
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        for (int line = 1; !file.atEnd(); ++line) {
            const QJsonObject note = QJsonDocument::fromJson(file.readLine()).object();
            EXPECT_EQ(note.value("line").toInt(), line);
            rebuilt.read(note);
        }
        return rebuilt.whole();
    }
};

TEST_F(Traces, AtOnce_BothRebuildTheReceipt)
{
    const auto a = traced("a");
    const auto b = traced("b");
    done({"open", "add PET15", "add PET1", "add BEER 2", "qty 1 2", "split 3 1"});
    EXPECT_TRUE(rebuilt("a") == receipt()->record());
    EXPECT_TRUE(rebuilt("b") == receipt()->record());
}

TEST_F(Traces, EndOfOne_LeavesTheOtherWhole)
{
    auto a = traced("a");
    const auto b = traced("b");
    done({"open", "add CAN3", "add BEER 2"});
    const ReceiptRecord then = receipt()->record();
    a.reset();
    done({"add DARK 1", "answer yes", "storno 2"});
    EXPECT_TRUE(rebuilt("a") == then);
    EXPECT_TRUE(rebuilt("b") == receipt()->record());
}

TEST_F(Traces, OneThatBeginsInAReceipt_IsWholeFromTheNextTakeUpOn)
{
    const auto a = traced("a");
    done({"open", "add CAN3", "add BEER 2"});
    const auto late = traced("late");
    done({"add CHIPS", "restart", "add DARK 1"});
    EXPECT_TRUE(rebuilt("late") == receipt()->record());
    EXPECT_TRUE(rebuilt("a") == receipt()->record());
}

} // namespace

} // namespace till
