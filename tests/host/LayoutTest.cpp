#include "host/ActionArguments.h"
#include "host/ActionQueueController.h"
#include "host/ActionTrigger.h"
#include "host/ActivityNotifier.h"
#include "host/Config.h"
#include "host/Dialog.h"
#include "host/DocumentLogic.h"
#include "host/Event.h"
#include "host/Finally.h"
#include "host/LoyaltySystemLayer.h"
#include "host/Quantity.h"
#include "host/Session.h"
#include "host/Tr.h"

#include <gtest/gtest.h>

// How many bytes a plugin that was built earlier sets aside for what it makes itself; on machines
// of 64 bits. The sizes of a plugin's bases are pinned in tests/plugin.

namespace {

TEST(Layout, Values_HaveTheirSizes)
{
    EXPECT_EQ(sizeof(Event), 16U);
    EXPECT_EQ(sizeof(control::Action), 16U);
    EXPECT_EQ(sizeof(control::args::Core), 16U);
    EXPECT_EQ(sizeof(control::args::Storno), 16U);
    EXPECT_EQ(sizeof(ActionTrigger), 56U);
    EXPECT_EQ(sizeof(Quantity), 16U);
    EXPECT_EQ(sizeof(tr::Tr), 48U);
    EXPECT_EQ(sizeof(Finally), 32U);
}

// The slot and the factory make them where they are used.
TEST(Layout, ServicesMadeOnFirstUse_HaveTheirSizes)
{
    EXPECT_EQ(sizeof(Config), 16U);
    EXPECT_EQ(sizeof(Session), 16U);
    EXPECT_EQ(sizeof(ActivityNotifier), 32U);
    EXPECT_EQ(sizeof(ActionQueueController), 16U);
    EXPECT_EQ(sizeof(LoyaltySystemLayer), 8U);
    EXPECT_EQ(sizeof(Dialog), 8U);
    EXPECT_EQ(sizeof(DocumentLogic), 8U);
}

TEST(Layout, Slots_HoldOnePointer)
{
    EXPECT_EQ(sizeof(Singleton<Config>::instance), sizeof(Config *));
    EXPECT_EQ(sizeof(MockFactory<Dialog>::mocked), sizeof(QSharedPointer<Dialog>));
}

} // namespace
