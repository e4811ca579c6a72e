#include "tests/registry/RegistryFixture.h"

namespace {

using Used = QMap<QString, double>;

class CreatePackagingInfo : public Registry
{
};

TEST_F(CreatePackagingInfo, NewPosition_PoursTheBaseQuantity)
{
    const auto container = plugin.putTara(2, "{a}", 10.0, 10.0);

    const auto record = plugin.createPackagingInfo(goods(3, 4.5));

    EXPECT_EQ(*record, (PackagingControl::PackagingInfo{3, {{"{a}", 4.5}}}));
    EXPECT_EQ(container->freeCapacity, 5.5);
}

TEST_F(CreatePackagingInfo, NewPosition_LogsItsOwnNumber)
{
    plugin.putTara(2, "{a}", 10.0, 10.0);

    plugin.createPackagingInfo(goods(3, 4.5));

    EXPECT_EQ(log.lines(),
              QStringList{"INFO Изменение использованной позицией 3 ёмкости тары 2 на 4.500"});
}

TEST_F(CreatePackagingInfo, NewPosition_IsAppended)
{
    const auto first = plugin.createPackagingInfo(goods(9, 1.0));
    const auto second = plugin.createPackagingInfo(goods(3, 1.0));

    EXPECT_THAT(plugin.packagingList, testing::ElementsAre(first, second));
}

TEST_F(CreatePackagingInfo, WithoutTara_IsRecordedEmpty)
{
    const auto record = plugin.createPackagingInfo(goods(3, 4.5));

    EXPECT_EQ(*record, (PackagingControl::PackagingInfo{3, {}}));
    EXPECT_THAT(plugin.packagingList, testing::ElementsAre(record));
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(CreatePackagingInfo, CalledTwice_KeepsOneRecordAndPoursOnce)
{
    const auto container = plugin.putTara(2, "{a}", 10.0, 10.0);
    const auto position = goods(3, 4.5);
    const auto record = plugin.createPackagingInfo(position);

    EXPECT_EQ(plugin.createPackagingInfo(position), record);
    EXPECT_THAT(plugin.packagingList, testing::ElementsAre(record));
    EXPECT_EQ(record->usedTara, (Used{{"{a}", 4.5}}));
    EXPECT_EQ(container->freeCapacity, 5.5);
}

TEST_F(CreatePackagingInfo, KnownPositionThatGrew_GetsTheRest)
{
    const auto container = plugin.putTara(2, "{a}", 10.0, 10.0);
    const auto position = goods(3, 4.0);
    const auto record = plugin.createPackagingInfo(position);
    position->setBquant(6.0);

    EXPECT_EQ(plugin.createPackagingInfo(position), record);
    EXPECT_EQ(record->usedTara, (Used{{"{a}", 6.0}}));
    EXPECT_EQ(container->freeCapacity, 4.0);
}

TEST_F(CreatePackagingInfo, TwoRecordsOfOneNumber_TheFirstIsUsed)
{
    const auto first = plugin.putGoods(3);
    const auto second = plugin.putGoods(3);

    EXPECT_EQ(plugin.createPackagingInfo(goods(3, 1.0)), first);
    EXPECT_THAT(plugin.packagingList, testing::ElementsAre(first, second));
}

TEST_F(CreatePackagingInfo, NewPosition_AsksTheHostForNothing)
{
    plugin.putTara(2, "{a}", 10.0, 10.0);

    plugin.createPackagingInfo(goods(3, 4.5));

    EXPECT_EQ(host.journal, QStringList());
}

//! Finds a record that stands in no list, although an equal one does.
class FindsADouble : public TestPlugin
{
public:
    QSharedPointer<PackagingInfo> getPackagingInfoByPosnum(int posnum) const override
    {
        return QSharedPointer<PackagingInfo>(new PackagingInfo{posnum, {}});
    }
};

TEST_F(CreatePackagingInfo, RecordEqualToAListedOne_IsAnotherRecord)
{
    FindsADouble subject;
    const auto listed = subject.putGoods(3);

    const auto record = subject.createPackagingInfo(goods(3, 1.0));

    EXPECT_EQ(*record, *listed);
    EXPECT_THAT(subject.packagingList, testing::ElementsAre(listed, record));
}

//! Notes how long the list was when the goods were poured, and of which number they were.
class NotesThePouring : public TestPlugin
{
public:
    void modifyPackagingUsedCapacity(const QSharedPointer<PackagingInfo> &info,
                                     double newUsedCapacity) override
    {
        listedWhenPoured = packagingList.contains(info);
        posnumWhenPoured = info->posnum;
        TestPlugin::modifyPackagingUsedCapacity(info, newUsedCapacity);
    }

    bool listedWhenPoured = true;
    int posnumWhenPoured = 0;
};

TEST_F(CreatePackagingInfo, NewPosition_IsPouredBeforeItIsListed)
{
    NotesThePouring subject;

    subject.createPackagingInfo(goods(3, 1.0));

    EXPECT_FALSE(subject.listedWhenPoured);
    EXPECT_EQ(subject.posnumWhenPoured, 3);
    EXPECT_EQ(subject.packagingList.size(), 1);
}

} // namespace
