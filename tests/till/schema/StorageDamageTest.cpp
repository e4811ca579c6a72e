#include "tests/till/storage/StorageFixture.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <gmock/gmock.h>

namespace till {

namespace {

using testing::HasSubstr;
using testing::StartsWith;

class StorageDamage : public StorageTest
{
protected:
    //! The database cannot be opened, the error names it and says \a what, and it is left as it
    //! was.
    void refusedAsIs(const std::string &what) const
    {
        const QByteArray before = contents(path());
        const std::string error = refusal().toStdString();
        EXPECT_THAT(error, StartsWith(path().toStdString() + ": "));
        EXPECT_THAT(error, HasSubstr(what));
        EXPECT_THAT(error, Not(HasSubstr("\n")));
        EXPECT_EQ(contents(path()), before);
    }

    //! Reading the unfinished receipt fails; the error.
    QString unreadable() const { return faultText(opened()->unfinishedReceipt()); }

    const QString wayOn = "; \"till set-apart 1\" sets this receipt apart, so that another can be "
                          "opened";
    const QString wayBack = "; put a copy that was made before in its place; what can still be "
                            "read, \"till receipts\" and \"till receipt NUMBER\" show";
};

TEST_F(StorageDamage, Garbage_IsRefused)
{
    overwrite(path(), QByteArray(10000, 'x'));
    refusedAsIs("not a database of the till, or damaged");
}

TEST_F(StorageDamage, ShortText_IsRefused)
{
    overwrite(path(), "code;name;price\n");
    refusedAsIs("not a database of the till, or damaged");
}

TEST_F(StorageDamage, TruncatedAnywhere_IsRefused)
{
    leaveUnfinished(200);
    const QByteArray whole = contents(path());
    for (const qsizetype length :
         {qsizetype(2), qsizetype(99), qsizetype(4096), whole.size() / 2, whole.size() - 4096}) {
        overwrite(path(), whole.left(length));
        refusedAsIs("damaged");
    }
}

TEST_F(StorageDamage, PageOverwritten_IsAnErrorOfTheReading)
{
    const QByteArray damaged = leaveDamaged();
    const std::string fault = unreadable().toStdString();
    EXPECT_THAT(fault, HasSubstr("damaged"));
    EXPECT_THAT(fault, HasSubstr("\"till set-apart NUMBER\" leaves one out"));
    EXPECT_EQ(contents(path()), damaged);
}

TEST_F(StorageDamage, EmptiedFileBesideAFullLog_IsRefusedAndTheLogStays)
{
    for (const QByteArray left : {"", "S"}) {
        overwrite(path(), left);
        overwrite(path("till.db-wal"), "receipts");
        refusedAsIs("the database is damaged (empty, but its log "
                    + path("till.db-wal").toStdString() + " is not)");
        EXPECT_EQ(contents(path("till.db-wal")), "receipts");
    }
}

TEST_F(StorageDamage, MissingFileBesideAFullLog_IsRefusedAndTheLogStays)
{
    overwrite(path("till.db-wal"), "receipts");
    EXPECT_THAT(refusal().toStdString(), HasSubstr("the database is damaged"));
    EXPECT_EQ(contents(path("till.db-wal")), "receipts");
    EXPECT_FALSE(QFileInfo::exists(path()));
}

// Whether anything is wrong shows without a look at every page; after a kill each is looked at.
TEST_F(StorageDamage, PageOverwrittenInAFileThatWasLeftOpen_IsRefused)
{
    leaveUnfinished(200);
    {
        const auto storage = opened();
        ReceiptRecord second = receiptOf(1);
        save(*storage, second);
        for (const QString name : {"till.db", "till.db-wal"})
            overwrite(path("left-" + name), contents(path(name)));
    }
    QByteArray damaged = contents(path("left-till.db"));
    damaged.replace(damaged.size() / 8192 * 4096, 4096, QByteArray(4096, '\x5a'));
    overwrite(path("left-till.db"), damaged);
    EXPECT_THAT(refusalOf(path("left-till.db")).toStdString(),
                HasSubstr("the database is damaged"));
    EXPECT_EQ(contents(path("left-till.db")), damaged);
}

class MissingTable : public StorageDamage, public testing::WithParamInterface<const char *>
{
};

TEST_P(MissingTable, IsRefusedAndNamed)
{
    leaveUnfinished(1);
    const QString kind = GetParam();
    query("DROP " + kind);
    EXPECT_EQ(refusal(), path() + ": the database is damaged (its " + kind
                             + " is missing or altered)" + wayBack);
}

INSTANTIATE_TEST_SUITE_P(Each, MissingTable,
                         testing::Values("table positions", "table softChecks", "table pluginData",
                                         "table journal", "table setApart", "index unfinished",
                                         "index journalOfReceipt", "index receiptsByTime"),
                         [](const auto &test) { return std::string(test.param).substr(6); });

TEST_F(StorageDamage, AlteredTable_IsRefused)
{
    leaveUnfinished(1);
    query("ALTER TABLE journal ADD COLUMN more");
    EXPECT_EQ(refusal(), path()
                             + ": the database is damaged (its table journal is missing or altered)"
                             + wayBack);
}

//! What may have happened to a value of plugin data.
class DamagedPluginData : public StorageDamage, public testing::WithParamInterface<const char *>
{
};

TEST_P(DamagedPluginData, IsAnErrorThatNamesPluginAndKey)
{
    ReceiptRecord record = receiptOf(1);
    record.pluginData["PackagingControl"]["taraInfo"] = QVariantList{QVariantMap{{"posnum", 1}}};
    record.pluginData["PackagingControl"]["good"] = 1;
    save(*opened(), record);
    query(QStringLiteral("UPDATE pluginData SET %1 WHERE key = 'taraInfo'").arg(GetParam()));

    EXPECT_EQ(unreadable(), path()
                                + ": receipt 1: the data of plugin \"PackagingControl\" under "
                                  "\"taraInfo\" are damaged"
                                + wayOn);
}

INSTANTIATE_TEST_SUITE_P(Damages, DamagedPluginData,
                         testing::Values("value = x''",
                                         "value = substr(value, 1, length(value) - 1)",
                                         "value = value || x'00'", "value = x'0000000900fffffffe'",
                                         "value = 'text'", "types = 'Unknown'", "digest = x''",
                                         "value = x'ffffffffffffffffffff'"),
                         [](const auto &test) { return "Damage" + std::to_string(test.index); });

TEST_P(DamagedPluginData, DoesNotHideTheLines)
{
    ReceiptRecord record = receiptOf(3);
    record.softChecks = QStringList{"5"};
    record.pluginData["PackagingControl"]["taraInfo"] = 1;
    save(*opened(), record);
    query(QStringLiteral("UPDATE pluginData SET %1").arg(GetParam()));

    EXPECT_EQ(opened()->remains(record.id).lines, record.lines);
    EXPECT_FALSE(opened()->receipt(record.id));
}

TEST_F(StorageDamage, PluginData_DoesNotHideTheOtherReceipts)
{
    const ReceiptRecord good = leaveUnfinished(2);
    ReceiptRecord bad = receiptOf(1);
    bad.pluginData["a"]["b"] = 1;
    save(*opened(), bad);
    query("UPDATE pluginData SET value = x'00'");

    EXPECT_EQ(must(opened()->receipt(good.id)), good);
}

} // namespace

} // namespace till
