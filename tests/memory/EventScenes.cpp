#include "tests/memory/MemoryTest.h"

// What the host tells the plugin: positions added, stornoed and changed.

namespace {

using Call = std::function<void()>;

Call told(Shop &shop, EActivityListener::Event code, int posnum)
{
    const Event event = Shop::event(code, shop.position(posnum));
    return [&shop, event] { shop.plugin.handleEvent(event); };
}

//! A position that the receipt has and the plugin does not know of yet.
Call added(Shop &shop, int taraMode, double quantity)
{
    shop.host.putPosition(8, taraMode, 1.5, quantity, quantity);
    return told(shop, EActivityListener::eventPositionAdded, 8);
}

Call stornoed(Shop &shop, int posnum)
{
    const auto event = Shop::event(EActivityListener::eventPositionStorno, shop.position(posnum));
    shop.host.receipt()->removePosition(posnum);
    return [&shop, event] { shop.plugin.handleEvent(event); };
}

Call changed(Shop &shop, EActivityListener::Event code, int posnum, double quantity)
{
    shop.position(posnum)->setCquant(quantity);
    shop.position(posnum)->setBquant(quantity);
    return told(shop, code, posnum);
}

constexpr bool savesOnEveryExit = true;

const Scene eventScenes[] = {
    {"TaraIsAdded",
     [](Shop &shop) {
         shop.fill();
         return added(shop, Tmc::Tara, 2.0);
     }},
    {"KnownTaraIsAddedAgain",
     [](Shop &shop) {
         shop.fill();
         shop.position(2)->setCquant(3.0);
         return told(shop, EActivityListener::eventPositionAdded, 2);
     }},
    {"GoodsAreAddedToTwoTaras",
     [](Shop &shop) {
         shop.host.addTara(1, 5.0);
         shop.host.addTara(2, 5.0);
         return added(shop, Tmc::PackagingGoods, 7.0);
     }},
    {"GoodsAreStornoed",
     [](Shop &shop) {
         shop.fill();
         return stornoed(shop, 4);
     }},
    {"OrdinaryPositionIsStornoed",
     [](Shop &shop) {
         shop.fill();
         shop.host.addOther(7, 1.0);
         return stornoed(shop, 7);
     }},
    {"TaraIsStornoed_GoodsAreReducedAndRemoved",
     [](Shop &shop) {
         shop.fill(); // goods 3 are removed, goods 4 keep what is in tara 2
         return stornoed(shop, 1);
     }},
    {"TaraIsStornoed_HostAnswersLate",
     [](Shop &shop) {
         shop.fill();
         shop.host.late = true;
         return stornoed(shop, 1);
     }},
    {"TaraIsStornoed_HostRefuses",
     [](Shop &shop) {
         shop.fill();
         shop.host.refuseEverything = true;
         return stornoed(shop, 1);
     }},
    {"TaraGrows_26",
     [](Shop &shop) {
         shop.fill();
         return changed(shop, EActivityListener::eventModifierApplied, 1, 2.0);
     },
     nullptr, savesOnEveryExit},
    {"TaraShrinks_252",
     [](Shop &shop) {
         shop.host.addTara(1, 5.0, 2.0);
         shop.host.addGoods(3, 10.0);
         return changed(shop, EActivityListener::eventModifierApplied2, 1, 1.0);
     },
     nullptr, savesOnEveryExit},
    {"TaraGoesToNothing_252",
     [](Shop &shop) {
         shop.fill();
         return changed(shop, EActivityListener::eventModifierApplied2, 1, 0.0);
     },
     nullptr, savesOnEveryExit},
    {"GoodsGrow_26",
     [](Shop &shop) {
         shop.fill();
         return changed(shop, EActivityListener::eventModifierApplied, 3, 6.0);
     }},
    {"GoodsGrowIntoTwoTaras_252",
     [](Shop &shop) {
         shop.host.addTara(1, 5.0);
         shop.host.addTara(2, 5.0);
         shop.host.addGoods(3, 4.0);
         return changed(shop, EActivityListener::eventModifierApplied2, 3, 7.0);
     },
     nullptr, savesOnEveryExit},
    {"GoodsShrink_252",
     [](Shop &shop) {
         shop.host.addTara(1, 5.0, 2.0);
         shop.host.addGoods(3, 10.0);
         shop.host.refuseEverything = true;
         shop.host.changeQuantity(1, 1.0);
         return changed(shop, EActivityListener::eventModifierApplied2, 3, 5.0);
     }},
    {"OrdinaryPositionIsChanged_26",
     [](Shop &shop) {
         shop.fill();
         shop.host.addOther(7, 1.0);
         return changed(shop, EActivityListener::eventModifierApplied, 7, 2.0);
     }},
};

INSTANTIATE_SCENES(Event, eventScenes);

} // namespace
