#include "contract/form/TableSlot.h"

#include "host/AbstractDocument.h"
#include "host/Action.h"
#include "host/ActionArguments.h"
#include "host/ActionQueueController.h"
#include "host/ActionTrigger.h"
#include "host/ActivityNotifier.h"
#include "host/BaseActivityListener.h"
#include "host/Config.h"
#include "host/Dialog.h"
#include "host/DocumentLogic.h"
#include "host/DocumentWatcher.h"
#include "host/Event.h"
#include "host/GoodsItem.h"
#include "host/LoyaltySystemLayer.h"
#include "host/ModifiersContainer.h"
#include "host/Quantity.h"
#include "host/Session.h"
#include "host/Tr.h"

#include <gtest/gtest.h>

#include <type_traits>

// How this host lays out its own tables. What every host has to keep is checked by the contract
// kit.

namespace {

using contract::notVirtual;
using contract::tableSlot;

TEST(VirtualTable, ReaderItself_TellsVirtualFromPlain)
{
    struct Mixed
    {
        virtual ~Mixed() = default;
        virtual int first() { return 1; }
        virtual int second() const { return 2; }
        int plain() const { return 3; }
    };

    EXPECT_EQ(tableSlot(&Mixed::first), 2);
    EXPECT_EQ(tableSlot(&Mixed::second), 3);
    EXPECT_EQ(tableSlot(&Mixed::plain), notVirtual);
}

TEST(VirtualTable, BaseActivityListener_HandleEventFollowsQObject)
{
    struct Listener : BaseActivityListener
    {
        using BaseActivityListener::BaseActivityListener;
        static auto lastOfQObject() { return &Listener::disconnectNotify; }
        void handleEvent(const Event &) override {}
        virtual void next() {}
    };
    const auto lastOfQObject = tableSlot(Listener::lastOfQObject());

    ASSERT_NE(lastOfQObject, notVirtual);
    EXPECT_EQ(tableSlot(&BaseActivityListener::handleEvent), lastOfQObject + 1);
    EXPECT_EQ(tableSlot(&Listener::next), lastOfQObject + 2);
}

TEST(VirtualTable, ActivityNotifier_SubscribeComesFirst)
{
    EXPECT_EQ(tableSlot(&ActivityNotifier::subscribe), 0);
}

static_assert(!std::has_virtual_destructor_v<DocumentWatcher>);

TEST(VirtualTable, AbstractDocument_OperationsInOrder)
{
    EXPECT_EQ(tableSlot(&AbstractDocument::getType), 0);
    EXPECT_EQ(tableSlot(&AbstractDocument::getOrder), 1);
    EXPECT_EQ(tableSlot(&AbstractDocument::getPositionByPosnum), 2);
    EXPECT_EQ(tableSlot(&AbstractDocument::setDocumentSwitch), 3);
    EXPECT_EQ(tableSlot(&AbstractDocument::getPositionList), 4);
    EXPECT_EQ(tableSlot(&AbstractDocument::getPluginData), 5);
    EXPECT_EQ(tableSlot(&AbstractDocument::setPluginData), 6);
}

TEST(VirtualTable, Services_TheirOneOperationComesFirst)
{
    EXPECT_EQ(tableSlot(&Config::getBool), 0);
    EXPECT_EQ(tableSlot(&Session::getModifiers), 0);
    EXPECT_EQ(tableSlot(&Dialog::showQuestion), 0);
    EXPECT_EQ(tableSlot(&DocumentLogic::stornoPosition), 0);
    EXPECT_EQ(tableSlot(&LoyaltySystemLayer::updateDocument), 0);
}

TEST(VirtualTable, ActionQueueController_RunActionFollowsQObject)
{
    struct Queue : ActionQueueController
    {
        static auto lastOfQObject() { return &Queue::disconnectNotify; }
    };
    const auto lastOfQObject = tableSlot(Queue::lastOfQObject());

    ASSERT_NE(lastOfQObject, notVirtual);
    EXPECT_EQ(tableSlot(&ActionQueueController::runAction), lastOfQObject + 1);
}

TEST(VirtualTable, GoodsItem_OperationsAreCalledDirectly)
{
    EXPECT_EQ(tableSlot(&GoodsItem::getPosnum), notVirtual);
    EXPECT_EQ(tableSlot(&GoodsItem::getTmc), notVirtual);
    EXPECT_EQ(tableSlot(&GoodsItem::getTmcTaraCapacity), notVirtual);
    EXPECT_EQ(tableSlot(&GoodsItem::getBquant), notVirtual);
    EXPECT_EQ(tableSlot(&GoodsItem::getCquant), notVirtual);
    EXPECT_EQ(tableSlot(&GoodsItem::getGroupId), notVirtual);
    EXPECT_EQ(tableSlot(&GoodsItem::setGroupId), notVirtual);
}

// A class without a table has no virtual operation at all.
static_assert(!std::is_polymorphic_v<Tmc>);
static_assert(!std::is_polymorphic_v<Event>);
static_assert(!std::is_polymorphic_v<control::Action>);
static_assert(!std::is_polymorphic_v<control::args::Storno>);
static_assert(!std::is_polymorphic_v<ActionTrigger>);
static_assert(!std::is_polymorphic_v<ModifiersContainer>);
static_assert(!std::is_polymorphic_v<Quantity>);
static_assert(!std::is_polymorphic_v<tr::Tr>);

} // namespace
