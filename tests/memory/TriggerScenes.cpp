#include "tests/memory/MemoryTest.h"

// What the host asks and tells the plugin around the cashier's actions.

namespace {

using Call = std::function<void()>;

Call called(Shop &shop, ActionTrigger::Order order, const control::Action &action)
{
    return [&shop, order, action] { FakeHost::trigger(shop.plugin, order, action); };
}

Call quantityAsked(Shop &shop, int posnum)
{
    shop.host.modifiers().set(modifiers::Quantity, QVariant::fromValue(Quantity()));
    const control::Action action(control::ApplyModifiers, {});
    control::args::Core(action).setPositionNumber(posnum);
    return called(shop, ActionTrigger::Before, action);
}

Call wasSplit(Shop &shop, int posnum, bool removed)
{
    const auto piece = shop.host.putPosition(8, Tmc::PackagingGoods, {}, 1.0, 1.0);
    const QVariantMap split{{"source", QVariant::fromValue(shop.position(posnum))},
                            {"result", QVariant::fromValue(GoodsItemPtrList{piece})},
                            {"removed", removed}};
    return called(
        shop, ActionTrigger::After,
        control::Action(control::SplitPositions, {{"splitPositionsData", QVariantList{split}}}));
}

Call wereUnited(Shop &shop, const GoodsItemPtrList &deleted, const GoodsItemPtrList &changed)
{
    return called(shop, ActionTrigger::After,
                  control::Action(control::UnitePositions,
                                  {{"deletedPositions", QVariant::fromValue(deleted)},
                                   {"changedPositions", QVariant::fromValue(changed)}}));
}

Call subtotal(Shop &shop, control::EActionType type, bool answer)
{
    shop.fill();
    shop.host.addTara(5, 1.0);
    shop.host.addTara(6, 1.0);
    shop.host.dialogAnswer = answer;
    return called(shop, ActionTrigger::Before, control::Action(type, {}));
}

Call softCheckWasAdded(Shop &shop)
{
    shop.fill();
    return called(shop, ActionTrigger::After, control::Action(control::AddSoftCheck, {}));
}

//! Suspended, unless the host was told by an exception that the plugin is not.
void expectSuspended(const Shop &shop, const shortage::Result &result)
{
    EXPECT_EQ(result.isThrown, shop.plugin.heldDocument() != nullptr);
}

const Scene triggerScenes[] = {
    {"SharedTaraIsRefused_5",
     [](Shop &shop) {
         shop.fill();
         return quantityAsked(shop, 1);
     }},
    {"PartlyFilledTaraIsRefused_5",
     [](Shop &shop) {
         shop.fill();
         return quantityAsked(shop, 2);
     }},
    {"EmptyTaraIsAllowed_5",
     [](Shop &shop) {
         shop.fill();
         shop.host.addTara(5, 1.0);
         return quantityAsked(shop, 5);
     }},
    {"GoodsAreSplit_233",
     [](Shop &shop) {
         shop.fill();
         shop.position(3)->setBquant(3.0);
         return wasSplit(shop, 3, false);
     }},
    {"RemovedGoodsAreSplit_233",
     [](Shop &shop) {
         shop.fill();
         shop.position(3)->setGroupId("{group}");
         return wasSplit(shop, 3, true);
     }},
    {"GoodsAreUnited_234",
     [](Shop &shop) {
         shop.fill();
         shop.position(3)->setBquant(6.0);
         return wereUnited(shop, {shop.position(4)}, {shop.position(3)});
     }},
    {"UnknownGoodsAreUnited_234",
     [](Shop &shop) {
         shop.fill();
         return wereUnited(shop, {}, {shop.host.putPosition(8, Tmc::NoTara, {}, 1.0, 1.0)});
     }},
    {"EmptyTaraIsStornoed_133", [](Shop &shop) { return subtotal(shop, control::Subtotal, true); }},
    {"EmptyTaraIsKept_144", [](Shop &shop) { return subtotal(shop, control::Payment, false); }},
    {"SoftCheckWasAdded_129", softCheckWasAdded, expectSuspended},
};

INSTANTIATE_SCENES(Trigger, triggerScenes);

} // namespace
