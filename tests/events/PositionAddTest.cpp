#include "tests/support/FakeHost.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Printers.h"
#include "tests/support/TestPlugin.h"

#include <gtest/gtest.h>

namespace {

class PositionAdd : public testing::Test
{
protected:
    PositionAdd()
    {
        plugin.init();
        plugin.setDocument(host.receipt());
        host.journal.clear();
    }

    FakeHost host;
    LogCapture log;
    TestPlugin plugin;
};

TEST_F(PositionAdd, Tara_RecordsCapacityAndSaves)
{
    host.addTara(2, 0.5, 3);

    ASSERT_EQ(plugin.taraList.size(), 1);
    EXPECT_EQ(plugin.taraList[0]->posnum, 2);
    EXPECT_EQ(plugin.taraList[0]->capacity, 1.5);
    EXPECT_EQ(plugin.taraList[0]->freeCapacity, 1.5);
    EXPECT_EQ(log.lines(), QStringList{"INFO Добавлена тара"});
    EXPECT_EQ(host.journal, (QStringList{"save taraInfo", "save packagingInfo"}));
}

} // namespace
