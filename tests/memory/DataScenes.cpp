#include "tests/memory/MemoryTest.h"

// The records written into the document and read from it.

namespace {

const Scene dataScenes[] = {
    {"RecordsAreSaved",
     [](Shop &shop) -> std::function<void()> {
         shop.fill();
         return [&shop] { shop.plugin.savePluginData(); };
     }},
    {"RecordsAreRestored",
     [](Shop &shop) -> std::function<void()> {
         shop.fill();
         return [&shop] { shop.plugin.restorePluginData(); };
     }},
    {"DocumentIsHandedOver",
     [](Shop &shop) -> std::function<void()> {
         shop.fill();
         shop.plugin.disablePlugin();
         return [&shop] { shop.plugin.setDocument(shop.host.receipt()); };
     }},
    {"DataOfOtherTypesAreRestored",
     [](Shop &shop) -> std::function<void()> {
         const QVariantHash tara{{"posnum", "12"},
                                 {"id", QByteArray("{x}")},
                                 {"capacity", "3.5"},
                                 {"freeCapacity", QVariantList{}}};
         const QVariantHash goods{{"posnum", 3.0}, {"usedTara", QVariantHash{{"{x}", "1.5"}}}};
         shop.host.receipt()->setPluginData("PackagingControl", "taraInfo", QVariantList{tara});
         shop.host.receipt()->setPluginData("PackagingControl", "packagingInfo",
                                            QVariantList{goods});
         return [&shop] { shop.plugin.restorePluginData(); };
     }},
};

INSTANTIATE_SCENES(Data, dataScenes);

} // namespace
