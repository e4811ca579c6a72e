#include "tests/till/storage/StorageFixture.h"
#include "tests/till/storage/UpdateBetween.h"

namespace till {

namespace {

//! Which rows a save touches, as triggers in the database note it.
class StorageWritten : public StorageTest
{
protected:
    StorageWritten()
    {
        opened();
        query("CREATE TABLE touched (id INTEGER PRIMARY KEY, what)");
        watch("receipts", "row.id");
        watch("positions", "row.place");
        watch("softChecks", "row.place");
        watch("pluginData", "row.key || ' ' || row.place");
        record = receiptOf(4);
        record.softChecks = QStringList{"1", "2"};
        record.pluginData["plugin"]["list"] = QVariantList{1, 0.0};
        record.pluginData["plugin"]["text"] = "";
        storage = opened();
        save(*storage, record);
        m_saved = record;
    }

    //! What a save of what changed touches.
    QStringList touched()
    {
        ReceiptUpdate update = updateBetween(m_saved, record);
        EXPECT_EQ(faultText(storage->save(update, {})), QString());
        return finish();
    }

    //! What the second save touched; the receipt is whole afterwards.
    QStringList finish()
    {
        storage.reset();
        EXPECT_EQ(unfinished(*opened()), record);
        return query("SELECT what FROM touched ORDER BY id").mid(RowsOfTheFirst);
    }

    ReceiptRecord record;
    std::unique_ptr<Storage> storage;

private:
    static constexpr int RowsOfTheFirst = 1 + 4 + 2 + 3 + 1;

    ReceiptRecord m_saved;

    void watch(const QString &table, const QString &column) const
    {
        for (const QString event : {"INSERT", "UPDATE", "DELETE"})
            query(QStringLiteral("CREATE TRIGGER %1%2 AFTER %2 ON %1 BEGIN "
                                 "INSERT INTO touched (what) VALUES ('%2 %1 ' || %3); END")
                      .arg(table, event,
                           QString(column).replace("row.", event == "DELETE" ? "old." : "new.")));
    }
};

TEST_F(StorageWritten, NothingChanged_WritesNothing)
{
    EXPECT_EQ(touched(), QStringList());
}

TEST_F(StorageWritten, OneLineChanged_WritesThatLineAndTheHeader)
{
    record.lines[2].stornoed = true;
    EXPECT_EQ(touched(), (QStringList{"UPDATE positions 2", "UPDATE receipts 1"}));
}

TEST_F(StorageWritten, LineAdded_WritesThatLineAndTheHeader)
{
    record.lines.append(lineOf(5));
    record.nextPosnum = 6;
    EXPECT_EQ(touched(), (QStringList{"INSERT positions 4", "UPDATE receipts 1"}));
}

TEST_F(StorageWritten, HeaderChanged_WritesTheHeader)
{
    record.state = ReceiptState::Subtotal;
    EXPECT_EQ(touched(), QStringList{"UPDATE receipts 1"});
}

TEST_F(StorageWritten, SoftCheckAdded_WritesThatOneAndTheHeader)
{
    record.softChecks.append("3");
    EXPECT_EQ(touched(), (QStringList{"INSERT softChecks 2", "UPDATE receipts 1"}));
}

TEST_F(StorageWritten, SoftCheckChanged_WritesThatOneAndTheHeader)
{
    record.softChecks[0] = "3";
    EXPECT_EQ(touched(), (QStringList{"UPDATE softChecks 0", "UPDATE receipts 1"}));
}

TEST_F(StorageWritten, PluginDataChanged_WritesThatKeyAndTheHeader)
{
    record.pluginData["plugin"]["text"] = "x";
    EXPECT_EQ(touched(), (QStringList{"DELETE pluginData text 0", "INSERT pluginData text 0",
                                      "UPDATE receipts 1"}));
}

TEST_F(StorageWritten, PluginDataSetToTheSame_WritesNothing)
{
    record.pluginData["plugin"]["list"] = QVariantList{1, 0.0};
    EXPECT_EQ(touched(), QStringList());
}

TEST_F(StorageWritten, ElementThatOnlyCountsAsEqual_IsWritten)
{
    ASSERT_EQ(QVariant(QVariantList{1, 0.0}), QVariant(QVariantList{1, -0.0}));
    record.pluginData["plugin"]["list"] = QVariantList{1, -0.0};
    EXPECT_EQ(touched(), (QStringList{"UPDATE pluginData list 2", "UPDATE receipts 1"}));
}

TEST_F(StorageWritten, ElementAdded_WritesThatOneAndTheHeader)
{
    record.pluginData["plugin"]["list"] = QVariantList{1, 0.0, "x"};
    EXPECT_EQ(touched(), (QStringList{"INSERT pluginData list 3", "UPDATE receipts 1"}));
}

TEST_F(StorageWritten, ElementRemoved_LeavesTheRowsBehindIt)
{
    record.pluginData["plugin"]["list"] = QVariantList{0.0};
    EXPECT_EQ(touched(), (QStringList{"DELETE pluginData list 1", "UPDATE receipts 1"}));
}

TEST_F(StorageWritten, ElementsChangedSeveralTimes_AreWrittenOnceAsTheyAreLast)
{
    ReceiptUpdate update = updateBetween(record, record);
    update.values = {{"plugin", "list", {}, {{1, 1, {2.5}}, {2, 0, {"a", "b"}}}},
                     {"plugin", "list", {}, {{0, 1, {}}, {1, 2, {"c"}}}},
                     {"plugin", "list", {}, {{1, 1, {"d"}}}}};
    record.pluginData["plugin"]["list"] = QVariantList{2.5, "d"};
    EXPECT_EQ(faultText(storage->save(update, {})), QString());
    EXPECT_EQ(finish(), (QStringList{"DELETE pluginData list 1", "UPDATE pluginData list 2",
                                     "INSERT pluginData list 3", "UPDATE receipts 1"}));
}

TEST_F(StorageWritten, ListThatBecomesAnotherValue_LosesItsElements)
{
    record.pluginData["plugin"]["list"] = 5;
    EXPECT_EQ(touched(), (QStringList{"DELETE pluginData list 0", "DELETE pluginData list 1",
                                      "DELETE pluginData list 2", "INSERT pluginData list 0",
                                      "UPDATE receipts 1"}));
}

TEST_F(StorageWritten, ChangeOfAnotherReceiptThanTheLast_IsRefused)
{
    ReceiptRecord other = receiptOf(1);
    save(*storage, other);
    ReceiptUpdate update = updateBetween(record, record);
    EXPECT_EQ(faultText(storage->save(update, {})),
              path() + ": receipt 1 is not the one that was stored last");
}

TEST_F(StorageWritten, ChangeAfterARefusedOne_IsRefusedUntilAllIsStored)
{
    ReceiptUpdate update = updateBetween(record, record);
    ReceiptUpdate bad = update;
    bad.lines.insert(0, lineOf(9));
    EXPECT_NE(faultText(storage->save(bad, {})), QString());
    EXPECT_NE(faultText(storage->save(update, {})), QString());
    save(*storage, record);
    EXPECT_EQ(faultText(storage->save(update, {})), QString());
}

} // namespace

} // namespace till
