#include "tests/till/storage/StorageFixture.h"
#include "till/archive/Upkeep.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlQuery>

#include <gmock/gmock.h>

#include <sys/stat.h>

// Others at the database of a till that is on, or was killed.

namespace till {

namespace {

using testing::HasSubstr;

class StorageReaders : public StorageTest
{
protected:
    //! Leaves a database with a receipt of \a count positions as a killed till does; what was
    //! saved.
    ReceiptRecord leaveKilled(int count) const
    {
        ReceiptRecord record = leaveUnfinished(1);
        const auto storage = opened();
        record = receiptOf(count);
        record.id = 1;
        save(*storage, record);
        for (const QString file : {"till.db", "till.db-wal"})
            overwrite(path("killed-" + file), contents(path(file)));
        return record;
    }

    QString killed() const { return path("killed-till.db"); }

    static CheckReport checked(const QString &path) { return must(checkDatabase(path)); }

    //! The check of a new database of receipts of these sizes without \a table, which it names.
    CheckReport checkedWithout(const QString &table, const QList<int> &sizes) const
    {
        QFile::remove(path());
        for (const int size : sizes)
            leaveUnfinished(size);
        query("DROP TABLE " + table);
        const CheckReport report = checked(path());
        EXPECT_THAT(faultText(report.fileHolds).toStdString(),
                    HasSubstr("its table " + table.toStdString() + " is missing"));
        EXPECT_FALSE(report.isGood());
        return report;
    }
};

TEST_F(StorageReaders, BesideATill_SeeWhatItSavedAndDoNotStopIt)
{
    const auto storage = opened();
    ReceiptRecord record = receiptOf(1);
    save(*storage, record);
    EXPECT_EQ(query("SELECT count(*) FROM positions"), QStringList{"1"});
    record = receiptOf(2);
    record.id = 1;
    save(*storage, record);
    EXPECT_EQ(query("SELECT count(*) FROM positions"), QStringList{"2"});
    EXPECT_EQ(unfinished(*storage), record);
}

TEST_F(StorageReaders, ThatStay_DoNotStopAReceiptFromClosing)
{
    const auto storage = opened();
    ReceiptRecord record = receiptOf(1);
    save(*storage, record);
    {
        QSqlDatabase reader = QSqlDatabase::addDatabase("QSQLITE", "reader");
        reader.setDatabaseName(path());
        ASSERT_TRUE(reader.open());
        QSqlQuery rows(reader);
        ASSERT_TRUE(rows.exec("BEGIN"));
        ASSERT_TRUE(rows.exec("SELECT state FROM receipts") && rows.next());
        record.state = ReceiptState::Closed;
        save(*storage, record);
        ASSERT_TRUE(rows.exec("SELECT state FROM receipts") && rows.next());
        EXPECT_EQ(rows.value(0).toInt(), 0); // as of its own moment
    }
    QSqlDatabase::removeDatabase("reader");
    EXPECT_EQ(query("SELECT state FROM receipts"), QStringList{"2"});
}

TEST_F(StorageReaders, LogOfAClosedReceipt_IsFoldedIntoTheFile)
{
    const auto storage = opened();
    ReceiptRecord record = receiptOf(1);
    save(*storage, record);
    EXPECT_GT(QFileInfo(path("till.db-wal")).size(), 0);
    record.state = ReceiptState::Closed;
    save(*storage, record);
    EXPECT_EQ(QFileInfo(path("till.db-wal")).size(), 0);
}

TEST_F(StorageReaders, BackUpWhileATillIsOn_IsWhole)
{
    const auto storage = opened();
    ReceiptRecord record = receiptOf(3);
    record.pluginData["plugin"]["key"] = QVariantList{1, 2.5};
    save(*storage, record, {{0, "open", "{}"}});
    EXPECT_EQ(faultText(backUp(path(), path("copy.db"))), QString());
    const auto copy = opened(path("copy.db"));
    EXPECT_EQ(unfinished(*copy), record);
    EXPECT_EQ(journalOf(copy->path(), record.id).size(), 1);
    EXPECT_EQ(unfinished(*storage), record);
}

TEST_F(StorageReaders, BackUpAfterAKill_HasTheLastCommandWhichTheFileAloneLacks)
{
    const ReceiptRecord record = leaveKilled(5);
    EXPECT_TRUE(QFile::copy(killed(), path("alone.db")));
    EXPECT_EQ(faultText(backUp(killed(), path("copy.db"))), QString());
    EXPECT_EQ(unfinished(*opened(path("copy.db"))), record);
    EXPECT_EQ(unfinished(*opened(path("alone.db")))->lines.size(), 1);
    EXPECT_EQ(unfinished(*opened(killed())), record);
}

TEST_F(StorageReaders, CheckAndBackUpOfAClosedDatabase_LeaveNothingBesideIt)
{
    leaveUnfinished(2);
    EXPECT_TRUE(checked(path()).isGood());
    EXPECT_EQ(faultText(backUp(path(), path("copy.db"))), QString());
    EXPECT_TRUE(checked(path("copy.db")).isGood());
    EXPECT_EQ(QDir(directory.path()).entryList(QDir::Files), QStringList({"copy.db", "till.db"}));
}

TEST_F(StorageReaders, CheckAfterAKill_LeavesTheLogAsItIs)
{
    leaveKilled(2);
    const QByteArray log = contents(killed() + "-wal");
    const QByteArray file = contents(killed());
    EXPECT_TRUE(checked(killed()).isGood());
    EXPECT_EQ(contents(killed() + "-wal"), log);
    EXPECT_EQ(contents(killed()), file);
}

TEST_F(StorageReaders, CheckBesideATillWithAnEmptyLog_LeavesTheTillItsLog)
{
    const auto storage = opened();
    ReceiptRecord record = receiptOf(1);
    record.state = ReceiptState::Closed;
    save(*storage, record);
    ASSERT_EQ(QFileInfo(path("till.db-wal")).size(), 0);
    EXPECT_TRUE(checked(path()).isGood());
    EXPECT_TRUE(QFileInfo::exists(path("till.db-wal")));
    record = receiptOf(3);
    save(*storage, record);
    EXPECT_EQ(unfinished(*storage), record);
}

TEST_F(StorageReaders, BackUpOntoAFile_IsRefusedAndTheFileStays)
{
    leaveUnfinished(1);
    overwrite(path("copy.db"), "mine");
    EXPECT_THAT(faultText(backUp(path(), path("copy.db"))).toStdString(),
                HasSubstr("something already"));
    EXPECT_EQ(contents(path("copy.db")), "mine");
}

TEST_F(StorageReaders, BackUpThatCannotBeMade_SaysWhyAndLeavesNothing)
{
    leaveUnfinished(1);
    EXPECT_THAT(faultText(backUp(path(), path("no/copy.db"))).toStdString(),
                HasSubstr("No such file"));
    EXPECT_THAT(faultText(backUp(path("none.db"), path("copy.db"))).toStdString(),
                HasSubstr("no such file"));
    overwrite(path("text"), "Dear shop,");
    EXPECT_NE(faultText(backUp(path("text"), path("copy.db"))), QString());
    EXPECT_EQ(QDir(directory.path()).entryList({"copy*"}), QStringList());
}

TEST_F(StorageReaders, CheckOfAWholeDatabase_FindsNothing)
{
    leaveUnfinished(2);
    leaveUnfinished(3);
    const CheckReport report = checked(path());
    EXPECT_TRUE(report.fileHolds);
    EXPECT_EQ(report.whole, 2);
    EXPECT_TRUE(report.isGood());
}

TEST_F(StorageReaders, CheckBesideATillAndAfterAKill_Works)
{
    leaveKilled(2);
    EXPECT_EQ(checked(killed()).whole, 1);
    const auto storage = opened(killed());
    EXPECT_EQ(checked(killed()).whole, 1);
}

TEST_F(StorageReaders, CheckOfDamage_NamesEachReceipt)
{
    for (int count = 1; count <= 4; ++count)
        leaveUnfinished(count);
    query("UPDATE positions SET price = -100 WHERE receipt = 2");
    query("DELETE FROM receipts WHERE id = 3");
    query("UPDATE receipts SET orderNumber = 'x' WHERE id = 4");
    EXPECT_EQ(faultText(opened()->setApart(4)), QString());
    const CheckReport report = checked(path());
    EXPECT_EQ(report.whole, 1);
    ASSERT_EQ(report.odd.size(), 3);
    EXPECT_EQ(report.odd[0].id, 2);
    EXPECT_EQ(report.odd[0].reason, "position 1 is not as it was stored");
    EXPECT_EQ(report.odd[1].reason, "its header is missing");
    EXPECT_TRUE(report.odd[2].isSetApart);
    EXPECT_EQ(report.odd[2].reason, "its header is not as it was stored");
    EXPECT_FALSE(report.isGood());
}

TEST_F(StorageReaders, CheckOfWhatWasSetApart_IsGood)
{
    leaveUnfinished(1);
    query("UPDATE positions SET price = -100");
    EXPECT_EQ(faultText(opened()->setApart(1)), QString());
    EXPECT_TRUE(checked(path()).isGood());
}

TEST_F(StorageReaders, CheckOfADamagedFile_SaysSo)
{
    const QByteArray damaged = leaveDamaged();
    const CheckReport report = checked(path());
    EXPECT_THAT(faultText(report.fileHolds).toStdString(), HasSubstr("damaged"));
    EXPECT_FALSE(report.isGood());
    EXPECT_EQ(contents(path()), damaged);
}

TEST_F(StorageReaders, CheckWithoutATableOfNoReceipts_CountsWhatHolds)
{
    for (const QString table : {"journal", "setApart"}) {
        const CheckReport report = checkedWithout(table, {2});
        EXPECT_EQ(report.whole, 1);
        EXPECT_EQ(report.odd.size(), 0);
        EXPECT_TRUE(report.hasAll);
    }
}

TEST_F(StorageReaders, CheckWithoutATableOfReceipts_NamesEach)
{
    for (const QString table : {"positions", "softChecks", "pluginData"}) {
        const CheckReport report = checkedWithout(table, {2, 3});
        EXPECT_EQ(report.whole, 0);
        ASSERT_EQ(report.odd.size(), 2);
        EXPECT_EQ(report.odd[1].id, 2);
        EXPECT_EQ(report.odd[1].reason, "no such table: " + table);
    }
}

//! Whether the file is its owner's alone, whatever the umask.
class Umask : public StorageReaders, public testing::WithParamInterface<mode_t>
{
protected:
    Umask()
        : m_before(umask(GetParam()))
    {
    }
    ~Umask() override { umask(m_before); }

    mode_t mode(const QString &name) const
    {
        struct stat status = {};
        EXPECT_EQ(stat(QFile::encodeName(path(name)).constData(), &status), 0);
        return status.st_mode & 07777;
    }

private:
    mode_t m_before;
};

TEST_P(Umask, Files_AreTheOwnersAlone)
{
    const auto storage = opened();
    ReceiptRecord record = receiptOf(1);
    save(*storage, record);
    EXPECT_EQ(faultText(backUp(path(), path("copy.db"))), QString());
    for (const QString file : {"till.db", "till.db-wal", "till.db-shm", "till.db-lock", "copy.db"})
        EXPECT_EQ(mode(file), 0600) << file.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Each, Umask, testing::Values(0, 022, 077, 0777));

} // namespace

} // namespace till
