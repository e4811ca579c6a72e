#include "tests/memory/MemoryTest.h"

#include <gmock/gmock.h>

// The records written into the document and read from it.

namespace {

using Call = std::function<void()>;

//! None, or wholly those of the receipt in hand; never those from before it was restored.
void expectNoneOrItsRecords(const Shop &shop, const shortage::Result &)
{
    EXPECT_THAT(heldRecords(shop.plugin), testing::AnyOf(Records(), shop.receipt->records()));
}

//! Tara 7 of 3 with 1 used by goods 9, none of which is a record of `Shop::fill`.
void storeOtherRecords(Document &receipt)
{
    const QVariantMap tara{{"posnum", 7}, {"id", "{x}"}, {"capacity", 3.0}, {"freeCapacity", 2.0}};
    const QVariantMap goods{{"posnum", 9}, {"usedTara", QVariantMap{{"{x}", 1.0}}}};
    receipt.setPluginData("PackagingControl", "taraInfo", QVariantList{tara});
    receipt.setPluginData("PackagingControl", "packagingInfo", QVariantList{goods});
}

//! The plugin still has the records of the receipt before.
Call otherReceiptIsHandedOver(Shop &shop)
{
    shop.fill();
    shop.newReceipt();
    storeOtherRecords(*shop.host.receipt());
    return [&shop] { shop.plugin.setDocument(shop.receipt); };
}

//! The records of the receipt in hand were changed behind the plugin's back.
Call otherRecordsAreRestored(Shop &shop)
{
    shop.fill();
    storeOtherRecords(*shop.host.receipt());
    return [&shop] { shop.plugin.restorePluginData(); };
}

const Scene dataScenes[] = {
    {"RecordsAreSaved",
     [](Shop &shop) -> Call {
         shop.fill();
         return [&shop] { shop.plugin.savePluginData(); };
     }},
    {"RecordsAreRestored",
     [](Shop &shop) -> Call {
         shop.fill();
         return [&shop] { shop.plugin.restorePluginData(); };
     },
     expectNoneOrItsRecords},
    {"DocumentIsHandedOver",
     [](Shop &shop) -> Call {
         shop.fill();
         shop.plugin.disablePlugin();
         return [&shop] { shop.plugin.setDocument(shop.receipt); };
     },
     expectNoneOrItsRecords},
    {"OtherReceiptIsHandedOver", otherReceiptIsHandedOver, expectNoneOrItsRecords},
    {"OtherRecordsAreRestored", otherRecordsAreRestored, expectNoneOrItsRecords},
    {"DataOfOtherTypesAreRestored",
     [](Shop &shop) -> Call {
         const QVariantHash tara{{"posnum", "12"},
                                 {"id", QByteArray("{x}")},
                                 {"capacity", "3.5"},
                                 {"freeCapacity", QVariantList{}}};
         const QVariantHash goods{{"posnum", 3.0}, {"usedTara", QVariantHash{{"{x}", "1.5"}}}};
         shop.host.receipt()->setPluginData("PackagingControl", "taraInfo", QVariantList{tara});
         shop.host.receipt()->setPluginData("PackagingControl", "packagingInfo",
                                            QVariantList{goods});
         return [&shop] { shop.plugin.restorePluginData(); };
     },
     expectNoneOrItsRecords},
};

INSTANTIATE_SCENES(Data, dataScenes);

} // namespace
