#include "tests/triggers/TriggerTest.h"

#include <gmock/gmock.h>

// Which of its own operations the plugin calls after a split and after a union, and in which order.

namespace {

using testing::_;
using testing::InSequence;
using testing::Return;

using InfoPtr = QSharedPointer<PackagingControl::PackagingInfo>;

class WatchedPlugin : public TestPlugin
{
public:
    WatchedPlugin()
    {
        ON_CALL(*this, getPackagingInfoByPosnum(_)).WillByDefault([](int) {
            return InfoPtr::create();
        });
    }

    MOCK_METHOD(QString, getId, (), (const, override));
    MOCK_METHOD(InfoPtr, createPackagingInfo, (const GoodsItemPtr &), (override));
    MOCK_METHOD(void, savePluginData, (), (const, override));
    MOCK_METHOD(InfoPtr, getPackagingInfoByPosnum, (int), (const, override));
    MOCK_METHOD(void, modifyPackagingUsedCapacity, (const InfoPtr &, double), (override));
};

class FollowUpCalls : public TriggerTest<testing::StrictMock<WatchedPlugin>>
{
protected:
    //! The record that the lookup of \a posnum is to find next.
    InfoPtr expectLookup(int posnum)
    {
        const auto record = plugin.putGoods(posnum);
        EXPECT_CALL(plugin, getPackagingInfoByPosnum(posnum)).WillOnce(Return(record));
        return record;
    }

    void expectRecorded(const GoodsItemPtr &position, const QString &group)
    {
        EXPECT_CALL(plugin, createPackagingInfo(position)).WillOnce([group](const auto &piece) {
            EXPECT_EQ(piece->getGroupId(), group);
            return InfoPtr();
        });
    }
};

TEST_F(FollowUpCalls, SplitWithKeptSource_ForgetsNamesTheGroupRecordsTheSourceFirstAndSaves)
{
    const auto source = goods(2, 5);
    const GoodsItemPtrList pieces{goods(4, 1), goods(3, 2)};
    const InSequence order;
    expectLookup(2);
    EXPECT_CALL(plugin, getId()).WillOnce(Return("new group"));
    expectRecorded(source, "new group");
    expectRecorded(pieces[0], "new group");
    expectRecorded(pieces[1], "new group");
    EXPECT_CALL(plugin, savePluginData());

    after(actions::split({actions::splitOf(source, pieces, false)}));

    EXPECT_EQ(plugin.packagingList.size(), 0) << "the record of the source is forgotten";
}

TEST_F(FollowUpCalls, SplitOfAGroupedSource_NeedsNoNewName)
{
    const auto source = goods(2, 5);
    source->setGroupId("group");
    const auto piece = goods(3, 5);
    const InSequence order;
    expectLookup(2);
    expectRecorded(piece, "group");
    EXPECT_CALL(plugin, savePluginData());

    after(actions::split({actions::splitOf(source, {piece}, true)}));
}

TEST_F(FollowUpCalls, TwoSplits_AreHandledOneAfterTheOtherAndSavedOnce)
{
    const auto first = goods(2, 5);
    const auto second = goods(4, 5);
    const GoodsItemPtrList pieces{goods(3, 1), goods(5, 1)};
    const InSequence order;
    expectLookup(2);
    EXPECT_CALL(plugin, getId()).WillOnce(Return("group of 2"));
    expectRecorded(first, "group of 2");
    expectRecorded(pieces[0], "group of 2");
    expectLookup(4);
    EXPECT_CALL(plugin, getId()).WillOnce(Return("group of 4"));
    expectRecorded(pieces[1], "group of 4");
    EXPECT_CALL(plugin, savePluginData());

    after(actions::split({actions::splitOf(first, {pieces[0]}, false),
                          actions::splitOf(second, {pieces[1]}, true)}));
}

TEST_F(FollowUpCalls, NothingWasSplit_OnlySaves)
{
    EXPECT_CALL(plugin, savePluginData());
    after(actions::split({}));
}

TEST_F(FollowUpCalls, Union_ForgetsEveryDeletedThenPlacesEveryChangedThenSaves)
{
    const GoodsItemPtrList deleted{goods(5, 1), goods(3, 2)};
    const GoodsItemPtrList changed{goods(4, 6), goods(2, 7)};
    const InSequence order;
    expectLookup(5);
    expectLookup(3);
    const auto fourth = expectLookup(4);
    EXPECT_CALL(plugin, modifyPackagingUsedCapacity(fourth, 6));
    const auto second = expectLookup(2);
    EXPECT_CALL(plugin, modifyPackagingUsedCapacity(second, 7));
    EXPECT_CALL(plugin, savePluginData());

    after(actions::unite(deleted, changed));

    EXPECT_EQ(posnumsOf(plugin.packagingList), (QList<int>{4, 2}));
}

TEST_F(FollowUpCalls, NothingWasUnited_OnlySaves)
{
    EXPECT_CALL(plugin, modifyPackagingUsedCapacity(_, _)).Times(0);
    EXPECT_CALL(plugin, savePluginData());
    after(actions::unite({}, {}));
}

} // namespace
