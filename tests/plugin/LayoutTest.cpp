#include "tests/plugin/RecordingHost.h"

#include <gtest/gtest.h>
#include <log4qt/logger.h>

#include <cstddef>
#include <type_traits>

// Where the parts of an object lie, as callers that were built earlier know it; on machines of
// 64 bits.

namespace {

template <class Part>
std::ptrdiff_t offsetIn(const TestPlugin &plugin, const Part *part)
{
    return reinterpret_cast<const char *>(part) - reinterpret_cast<const char *>(&plugin);
}

class Layout : public testing::Test
{
protected:
    std::ptrdiff_t listener() const
    {
        return offsetIn(plugin, static_cast<const BaseActivityListener *>(&plugin));
    }
    std::ptrdiff_t basicPlugin() const
    {
        return offsetIn(plugin, static_cast<const BasicPlugin *>(&plugin));
    }
    std::ptrdiff_t watcher() { return offsetIn(plugin, plugin.qt_metacast("DocumentWatcher")); }
    template <class Part>
    std::ptrdiff_t offset(const Part &part) const
    {
        return offsetIn(plugin, &part);
    }

    FakeHost host;
    TestPlugin plugin;
};

TEST_F(Layout, Bases_FollowEachOtherInOrder)
{
    EXPECT_EQ(listener(), 0);
    EXPECT_EQ(basicPlugin(), std::ptrdiff_t(sizeof(BaseActivityListener)));
    EXPECT_EQ(watcher(), basicPlugin() + std::ptrdiff_t(sizeof(BasicPlugin)));
}

// In numbers too, as a base that grows would take the rest along.
TEST_F(Layout, Sizes_AreTheContracts)
{
    EXPECT_EQ(sizeof(BaseActivityListener), 16U);
    EXPECT_EQ(sizeof(BasicPlugin), 48U);
    EXPECT_EQ(sizeof(DocumentWatcher), 24U);
    EXPECT_EQ(offset(plugin.taraList), 88);
    EXPECT_EQ(offset(plugin.packagingList), 112);
    EXPECT_EQ(offset(plugin.logger), 136);
    EXPECT_EQ(sizeof(PackagingControl), 144U);
}

TEST_F(Layout, TaraRecord_HasItsMembersInOrder)
{
    using TaraInfo = PackagingControl::TaraInfo;

    EXPECT_EQ(offsetof(TaraInfo, posnum), 0U);
    EXPECT_EQ(offsetof(TaraInfo, id), 8U);
    EXPECT_EQ(offsetof(TaraInfo, capacity), 32U);
    EXPECT_EQ(offsetof(TaraInfo, freeCapacity), 40U);
    EXPECT_EQ(sizeof(TaraInfo), 48U);
}

TEST_F(Layout, GoodsRecord_HasItsMembersInOrder)
{
    using PackagingInfo = PackagingControl::PackagingInfo;

    EXPECT_EQ(offsetof(PackagingInfo, posnum), 0U);
    EXPECT_EQ(offsetof(PackagingInfo, usedTara), 8U);
    EXPECT_EQ(sizeof(PackagingInfo), 16U);
}

TEST_F(Layout, ListenerBase_AddsNothingToAnObject)
{
    EXPECT_EQ(sizeof(BaseActivityListener), sizeof(QObject));
}

TEST_F(Layout, Members_FollowTheBasesInOrder)
{
    EXPECT_EQ(offset(plugin.taraList), watcher() + std::ptrdiff_t(sizeof(DocumentWatcher)));
    EXPECT_EQ(offset(plugin.packagingList),
              offset(plugin.taraList) + std::ptrdiff_t(sizeof plugin.taraList));
    EXPECT_EQ(offset(plugin.logger),
              offset(plugin.packagingList) + std::ptrdiff_t(sizeof plugin.packagingList));
}

TEST_F(Layout, Logger_IsTheLastMember)
{
    EXPECT_EQ(std::ptrdiff_t(sizeof(PackagingControl)),
              offset(plugin.logger) + std::ptrdiff_t(sizeof plugin.logger));
}

TEST_F(Layout, HeldDocument_FollowsTheWatchersTable)
{
    plugin.setDocument(host.receipt());

    const auto *part = static_cast<const char *>(plugin.qt_metacast("DocumentWatcher"));
    const auto *held =
        reinterpret_cast<const QSharedPointer<AbstractDocument> *>(part + sizeof(void *));

    EXPECT_EQ(held->get(), host.receipt().get());
    EXPECT_EQ(sizeof(DocumentWatcher), sizeof(void *) + sizeof *held);
}

TEST_F(Layout, MemberTypes_AreTheContracts)
{
    using Taras = QList<QSharedPointer<PackagingControl::TaraInfo>>;
    using Goods = QList<QSharedPointer<PackagingControl::PackagingInfo>>;

    EXPECT_TRUE((std::is_same_v<decltype(TestPlugin::taraList), Taras>));
    EXPECT_TRUE((std::is_same_v<decltype(TestPlugin::packagingList), Goods>));
    EXPECT_TRUE((std::is_same_v<decltype(TestPlugin::logger), Log4Qt::Logger *>));
}

TEST_F(Layout, PublicBases_AreTheListenerAndThePluginOnly)
{
    EXPECT_TRUE((std::is_convertible_v<PackagingControl *, BaseActivityListener *>));
    EXPECT_TRUE((std::is_convertible_v<PackagingControl *, BasicPlugin *>));
    EXPECT_TRUE((std::is_base_of_v<DocumentWatcher, PackagingControl>));
    EXPECT_FALSE((std::is_convertible_v<PackagingControl *, DocumentWatcher *>));
}

} // namespace
