#ifndef TESTS_TILL_LOOKUP_LOOKUPFIXTURE_H
#define TESTS_TILL_LOOKUP_LOOKUPFIXTURE_H

#include "tests/till/console/ProgramFixture.h"
#include "tests/till/support/ManyReceipts.h"
#include "tests/till/support/Results.h"

#include <algorithm>

//! The program that looks up receipts in the database of a test's.
class LookupTest : public ProgramTest
{
protected:
    RunResult lookUp(const QStringList &arguments) const
    {
        return run(QStringList{"--db", database(), "--lang", "en"} + arguments);
    }

    //! What is told of the database, in which nothing is wrong.
    std::string told(const QStringList &arguments) const
    {
        const RunResult done = lookUp(arguments);
        EXPECT_EQ(done.status, 0);
        EXPECT_EQ(done.err, "");
        return done.out;
    }

    //! The same as JSON.
    QList<QJsonObject> objects(const QStringList &arguments) const
    {
        return trace(QByteArray::fromStdString(told(arguments + QStringList{"--json"})));
    }

    //! Leaves a receipt that was paid, a return with an order, and an open one.
    void sell() const
    {
        const QByteArray lines = "open\nadd CAN3\nadd PET1\nadd BEER 2\npay\n"
                                 "open return\nadd CHIPS\norder 7,\"a\"\npay\n"
                                 "open\nadd BAG\nanswer yes\nstorno 1\n";
        EXPECT_EQ(run({"--db", database()}, lines).status, 0);
    }

    //! A database of \a count receipts.
    void sellMany(qint64 count) const
    {
        ASSERT_EQ(till::faultText(till::makeManyReceipts(database(), count)), QString());
    }

    static qsizetype linesOf(const std::string &text)
    {
        return std::count(text.begin(), text.end(), '\n');
    }
};

#endif // TESTS_TILL_LOOKUP_LOOKUPFIXTURE_H
