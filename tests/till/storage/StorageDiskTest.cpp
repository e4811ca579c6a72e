#include "tests/till/storage/StorageFixture.h"
#include "tests/till/storage/UpdateBetween.h"
#include "tests/till/support/FailingDisk.h"
#include "till/archive/Archive.h"
#include "till/archive/Upkeep.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <gmock/gmock.h>

namespace till {

namespace {

using testing::HasSubstr;

class StorageDisk : public StorageTest
{
protected:
    const QList<JournalEntry> firstEntry{{0, "open", "{}"}};
    FailingDisk disk{directory.path()};

    //! A database whose last command lies in its log alone, with no room for the file itself.
    ReceiptRecord leaveInTheLog()
    {
        ReceiptRecord record = leaveUnfinished(1);
        disk.leaveNoRoomIn("till.db");
        record.order = "only in the log";
        save(*opened(), record);
        return record;
    }
};

//! By how many bytes there is room for.
class FullDisk : public StorageDisk, public testing::WithParamInterface<int>
{
protected:
    FullDisk()
    {
        stored = receiptOf(3);
        stored.pluginData["plugin"]["key"] = QVariantList{1};
        {
            const auto storage = opened();
            save(*storage, stored, firstEntry);
        }
        bigger = stored;
        bigger.order = "5";
        bigger.lines[0].stornoed = true;
        for (int posnum = 4; posnum <= 300; ++posnum)
            bigger.lines.append(lineOf(posnum));
        bigger.nextPosnum = 301;
        bigger.pluginData["plugin"]["key"] = QByteArray(10000, 'x');
    }

    void failToSave(Storage &storage)
    {
        disk.leaveRoomFor(GetParam());
        const QString error = trySave(storage, bigger, {{0, "add", "{}"}});
        EXPECT_EQ(error, path() + ": the disk is full (database or disk is full)");
    }

    ReceiptRecord stored;
    ReceiptRecord bigger;
};

TEST_P(FullDisk, Save_StoresNothing)
{
    const auto storage = opened();
    failToSave(*storage);
    EXPECT_EQ(unfinished(*storage), stored);
    EXPECT_EQ(journalOf(path(), stored.id), firstEntry);
}

TEST_P(FullDisk, SaveAndRestart_FindsWhatWasStoredBefore)
{
    {
        const auto storage = opened();
        failToSave(*storage);
    }
    disk.repair();
    const auto storage = opened();
    EXPECT_EQ(unfinished(*storage), stored);
    EXPECT_EQ(journalOf(path(), stored.id), firstEntry);
}

TEST_P(FullDisk, SaveWhenThereIsSpaceAgain_Works)
{
    const QList<JournalEntry> secondEntry{{0, "add", "{}"}};
    {
        const auto storage = opened();
        failToSave(*storage);
        disk.repair();
        save(*storage, bigger, secondEntry);
    }
    const auto storage = opened();
    EXPECT_EQ(unfinished(*storage), bigger);
    EXPECT_EQ(journalOf(path(), stored.id), firstEntry + secondEntry);
}

TEST_P(FullDisk, NewReceipt_GetsNoNumberUntilItIsStored)
{
    const auto storage = opened();
    bigger.id = 0;
    failToSave(*storage);
    EXPECT_EQ(bigger.id, 0);
    disk.repair();
    save(*storage, bigger);
    EXPECT_EQ(unfinished(*storage), bigger);
}

INSTANTIATE_TEST_SUITE_P(Room, FullDisk,
                         testing::Values(0, 1, 31, 32, 33, 56, 4000, 4096, 4128, 4152, 9000, 20000,
                                         30000));

class FullDiskAtFirst : public StorageDisk, public testing::WithParamInterface<int>
{
};

TEST_P(FullDiskAtFirst, Open_IsRefusedAndWorksWhenThereIsSpace)
{
    disk.leaveRoomFor(GetParam());
    EXPECT_EQ(refusal(), path() + ": the disk is full (database or disk is full)");
    disk.repair();
    const ReceiptRecord record = leaveUnfinished(2);
    EXPECT_EQ(unfinished(*opened()), record);
}

INSTANTIATE_TEST_SUITE_P(Room, FullDiskAtFirst,
                         testing::Values(0, 1, 100, 512, 600, 4000, 4096, 4700, 5000, 9000, 15000));

// The log grows meanwhile; nothing of it may be lost.
TEST_F(StorageDisk, NoRoomForTheDatabaseBesideItsLog_KeepsWhatWasSaved)
{
    ReceiptRecord record = leaveUnfinished(1);
    disk.leaveNoRoomIn("till.db");
    {
        const auto storage = opened();
        for (int number = 0; number < 60; ++number) {
            record.pluginData["plugin"]["key"] =
                QByteArray(100000, static_cast<char>('a' + number));
            save(*storage, record);
        }
    }
    EXPECT_GT(QFileInfo(path("till.db-wal")).size(), 4096 * 1000);
    disk.repair();
    EXPECT_EQ(unfinished(*opened()), record);
}

TEST_F(StorageDisk, LogThatCannotBeSynced_FailsTheSave)
{
    const auto storage = opened();
    ReceiptRecord record = receiptOf(1);
    save(*storage, record);
    const ReceiptRecord before = record;
    record.order = "5";
    disk.failSyncs();
    EXPECT_THAT(trySave(*storage, record, {}).toStdString(), HasSubstr("disk I/O error"));
    EXPECT_EQ(unfinished(*storage), before);
}

TEST_F(StorageDisk, SaveThatReturned_IsOnTheMedium)
{
    const auto storage = opened();
    ReceiptRecord record = receiptOf(1);
    for (int number = 0; number < 3; ++number) {
        disk.takeWritten();
        record.order = QString::number(number);
        save(*storage, record, {{0, "order", "{}"}});
        EXPECT_GT(disk.takeWritten(), 0);
        EXPECT_EQ(disk.unsynced(), QStringList());
    }
}

TEST_F(StorageDisk, ReadOnlyPlaceWithADatabase_IsRefusedAndKept)
{
    const ReceiptRecord record = leaveUnfinished(1);
    disk.makeReadOnly();
    EXPECT_EQ(refusal(), path() + ": this file may not be written");
    disk.repair();
    EXPECT_EQ(unfinished(*opened()), record);
}

TEST_F(StorageDisk, ReadOnlyPlaceWithAnInterruptedDatabase_IsRefusedAndKept)
{
    const ReceiptRecord record = leaveInTheLog();
    disk.makeReadOnly();
    EXPECT_EQ(refusal(), path() + ": this file may not be written");
    disk.repair();
    EXPECT_EQ(unfinished(*opened()), record);
}

TEST_F(StorageDisk, ReadOnlyPlaceWithoutADatabase_IsRefused)
{
    disk.makeReadOnly();
    EXPECT_EQ(refusal(), path() + ": the directory " + directory.path() + " may not be written");
    EXPECT_TRUE(QDir(directory.path()).isEmpty());
}

TEST_F(StorageDisk, ReadOnlyPlaceWithADatabase_CanBeLookedInto)
{
    const ReceiptRecord record = leaveUnfinished(2);
    disk.makeReadOnly();
    EXPECT_TRUE(must(checkDatabase(path())).isGood());
    const auto kept = must(must(Archive::open(path()))->receipt(1, "PackagingControl"));
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->record, record);
    EXPECT_EQ(QDir(directory.path()).entryList(QDir::Files), QStringList{"till.db"});
}

TEST_F(StorageDisk, ReadOnlyPlaceWithAnInterruptedDatabase_IsNotReadWithoutItsLog)
{
    const ReceiptRecord record = leaveInTheLog();
    disk.makeReadOnly();
    EXPECT_EQ(faultText(Archive::open(path())),
              path() + ": it is not read with its log " + path()
                  + "-wal where nothing may be written: copy both to another directory");
    disk.repair();
    EXPECT_EQ(must(must(Archive::open(path()))->receipt(1, "PackagingControl"))->record, record);
}

//! How many bytes it takes to change one position and one element of a receipt of \a count.
class StorageCost : public StorageDisk
{
protected:
    qint64 costOfAChange(int count)
    {
        const auto storage = opened(path(QString::number(count)));
        ReceiptRecord record = receiptOf(count);
        record.pluginData["plugin"]["key"] = QVariantList(count, 1.5);
        save(*storage, record);
        ReceiptRecord changed = record;
        changed.lines[count / 2].count = 7.0;
        QVariantList values(count, 1.5);
        values[count / 2] = 2.5;
        changed.pluginData["plugin"]["key"] = values;
        ReceiptUpdate update = updateBetween(record, changed);
        disk.takeWritten();
        EXPECT_EQ(faultText(storage->save(update, {{0, "change", "{}"}})), QString());
        return disk.takeWritten();
    }
};

TEST_F(StorageCost, OneChangedPositionAndElement_CostAboutTheSameInABigReceipt)
{
    // A page more or three, where the trees are deeper.
    EXPECT_LE(costOfAChange(1000), costOfAChange(10) + 3 * 4096 + 100);
}

} // namespace

} // namespace till
