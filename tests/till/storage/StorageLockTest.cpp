#include "tests/till/storage/StorageFixture.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>

namespace till {

namespace {

class StorageLock : public StorageTest
{
protected:
    //! What another process says when it opens the database and closes it at once.
    QString otherProcess() const
    {
        QProcess process;
        process.start(STORAGE_WRITER, {"open", path()});
        EXPECT_TRUE(process.waitForFinished(patience));
        EXPECT_EQ(process.readAllStandardError(), QByteArray());
        return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
    }

    static QString inUse(const QString &path)
    {
        return path
               + ": another till has this database open; close it, or name another database with "
                 "--db";
    }
};

TEST_F(StorageLock, SecondInTheSameProcess_IsRefused)
{
    const auto first = opened();
    EXPECT_EQ(refusal(), inUse(path()));
}

TEST_F(StorageLock, SecondInAnotherProcess_IsRefused)
{
    const auto first = opened();
    EXPECT_EQ(otherProcess(), inUse(path()));
}

TEST_F(StorageLock, DatabaseThatWasThereBefore_IsLockedFromTheStart)
{
    leaveUnfinished(1);
    const auto first = opened();
    EXPECT_EQ(otherProcess(), inUse(path()));
}

// Closing any descriptor of a file ends the locks that its process has on that file.
TEST_F(StorageLock, RefusalInTheSameProcess_LeavesTheLockInPlace)
{
    const auto first = opened();
    refusal();
    EXPECT_EQ(otherProcess(), inUse(path()));
}

TEST_F(StorageLock, Refusal_LeavesTheFirstWorking)
{
    const auto first = opened();
    refusal();
    ReceiptRecord record = receiptOf(3);
    save(*first, record);
    EXPECT_EQ(unfinished(*first), record);
}

TEST_F(StorageLock, SecondThroughALink_IsRefused)
{
    const auto first = opened();
    ASSERT_TRUE(QFile::link(path(), path("link.db")));
    EXPECT_EQ(refusalOf(path("link.db")), inUse(path("link.db")));
}

TEST_F(StorageLock, AfterTheFirstIsGone_AnotherProcessOpensIt)
{
    leaveUnfinished(1);
    EXPECT_EQ(otherProcess(), "opened");
}

TEST_F(StorageLock, OtherDatabase_IsOpenedBesideIt)
{
    const auto first = opened();
    EXPECT_NE(opened(path("other.db")), nullptr);
}

} // namespace

} // namespace till
