#include "tests/till/storage/StorageFixture.h"

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
        watch("receipts", "id");
        watch("positions", "place");
        watch("softChecks", "place");
        watch("pluginData", "key");
        record = receiptOf(4);
        record.softChecks = QStringList{"1", "2"};
        record.pluginData["plugin"]["list"] = QVariantList{1, 0.0};
        record.pluginData["plugin"]["text"] = "";
        storage = opened();
        save(*storage, record);
    }

    //! What the second save touched.
    QStringList touched()
    {
        save(*storage, record);
        storage.reset();
        return query("SELECT what FROM touched ORDER BY id").mid(RowsOfTheFirst);
    }

    ReceiptRecord record;
    std::unique_ptr<Storage> storage;

private:
    static constexpr int RowsOfTheFirst = 1 + 4 + 2 + 2;

    void watch(const QString &table, const QString &column) const
    {
        for (const QString event : {"INSERT", "UPDATE", "DELETE"})
            query(QStringLiteral("CREATE TRIGGER %1%2 AFTER %2 ON %1 BEGIN "
                                 "INSERT INTO touched (what) VALUES ('%2 %1 ' || %3.%4); END")
                      .arg(table, event, event == "DELETE" ? "old" : "new", column));
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

TEST_F(StorageWritten, LastLineRemoved_RemovesThatLineAndTheHeader)
{
    record.lines.removeLast();
    EXPECT_EQ(touched(), (QStringList{"DELETE positions 3", "UPDATE receipts 1"}));
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

TEST_F(StorageWritten, PluginDataChanged_WritesThatKeyAndTheHeader)
{
    record.pluginData["plugin"]["text"] = "x";
    EXPECT_EQ(touched(), (QStringList{"UPDATE pluginData text", "UPDATE receipts 1"}));
}

TEST_F(StorageWritten, PluginDataSetToTheSame_WritesNothing)
{
    record.pluginData["plugin"]["list"] = QVariantList{1, 0.0};
    EXPECT_EQ(touched(), QStringList());
}

TEST_F(StorageWritten, PluginDataThatOnlyCountAsEqual_AreWritten)
{
    ASSERT_EQ(QVariant(QVariantList{1, 0.0}), QVariant(QVariantList{1, -0.0}));
    record.pluginData["plugin"]["list"] = QVariantList{1, -0.0};
    EXPECT_EQ(touched(), (QStringList{"UPDATE pluginData list", "UPDATE receipts 1"}));
}

TEST_F(StorageWritten, PluginDataRemoved_RemovesThatKeyAndTheHeader)
{
    record.pluginData["plugin"].remove("text");
    EXPECT_EQ(touched(), (QStringList{"DELETE pluginData text", "UPDATE receipts 1"}));
}

TEST_F(StorageWritten, PluginRemoved_RemovesItsKeysAndTheHeader)
{
    record.pluginData.remove("plugin");
    EXPECT_EQ(touched(), (QStringList{"DELETE pluginData list", "DELETE pluginData text",
                                      "UPDATE receipts 1"}));
}

} // namespace

} // namespace till
