#include "tests/registry/RegistryFixture.h"

#include <QtCore/QUuid>

namespace {

class CreateTara : public Registry
{
};

TEST_F(CreateTara, NewPosition_CapacityIsThatOfAllPieces)
{
    const auto record = plugin.createTara(tara(2, 0.5, 3));

    EXPECT_EQ(record->posnum, 2);
    EXPECT_EQ(record->capacity, 1.5);
    EXPECT_EQ(record->freeCapacity, 1.5);
}

TEST_F(CreateTara, NewPosition_IsNamedByAFreshUuid)
{
    const auto first = plugin.createTara(tara(2, 1.0));
    const auto second = plugin.createTara(tara(3, 1.0));

    EXPECT_EQ(first->id.size(), 38);
    EXPECT_FALSE(QUuid::fromString(first->id).isNull());
    EXPECT_EQ(QUuid::fromString(first->id).toString(QUuid::WithBraces), first->id);
    EXPECT_NE(first->id, second->id);
}

TEST_F(CreateTara, NewPosition_IsAppended)
{
    const auto first = plugin.createTara(tara(9, 1.0));
    const auto second = plugin.createTara(tara(2, 1.0));

    EXPECT_THAT(plugin.taraList, testing::ElementsAre(first, second));
}

TEST_F(CreateTara, NewPosition_LogsNothingAndAsksTheHostForNothing)
{
    plugin.createTara(tara(2, 0.5, 3));

    EXPECT_EQ(log.lines(), QStringList());
    EXPECT_EQ(host.journal, QStringList());
}

TEST_F(CreateTara, KnownPosition_ResizesTheSameRecord)
{
    const auto position = tara(2, 0.5, 4);
    const auto record = plugin.createTara(position);
    const QString id = record->id;
    record->freeCapacity = 0.25; // 1.75 are poured in
    position->setCquant(2);

    EXPECT_EQ(plugin.createTara(position), record);
    EXPECT_THAT(plugin.taraList, testing::ElementsAre(record));
    EXPECT_EQ(*record, (PackagingControl::TaraInfo{2, id, 1.0, -0.75}));
    EXPECT_EQ(log.lines(), QStringList{"INFO Изменение ёмкости тары 2.000 -> 1.000"});
}

TEST_F(CreateTara, KnownPositionUnchanged_StaysAsItIs)
{
    const auto position = tara(2, 0.5, 4);
    const auto record = plugin.createTara(position);
    record->freeCapacity = 0.25;

    EXPECT_EQ(plugin.createTara(position), record);
    EXPECT_EQ(record->capacity, 2.0);
    EXPECT_EQ(record->freeCapacity, 0.25);
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(CreateTara, TwoRecordsOfOneNumber_TheFirstIsResized)
{
    const auto first = plugin.putTara(2, "{a}", 1.0, 1.0);
    const auto second = plugin.putTara(2, "{b}", 1.0, 1.0);

    EXPECT_EQ(plugin.createTara(tara(2, 3.0)), first);
    EXPECT_EQ(first->capacity, 3.0);
    EXPECT_EQ(second->capacity, 1.0);
}

TEST_F(CreateTara, RecordThatLeftTheList_GetsASuccessor)
{
    const auto position = tara(2, 1.0);
    const auto former = plugin.createTara(position);
    plugin.taraList.clear();

    const auto record = plugin.createTara(position);

    EXPECT_NE(record, former);
    EXPECT_NE(record->id, former->id);
    EXPECT_THAT(plugin.taraList, testing::ElementsAre(record));
}

TEST_F(CreateTara, WithoutADocument_StillRecords)
{
    const auto position = tara(2, 1.0);
    plugin.disablePlugin();

    EXPECT_THAT(plugin.taraList, testing::IsEmpty());
    EXPECT_EQ(plugin.createTara(position)->capacity, 1.0);
}

struct CapacityRow
{
    QVariant inCatalogue;
    double capacity;
};

void PrintTo(const CapacityRow &row, std::ostream *out)
{
    PrintTo(row.inCatalogue, out);
}

class CatalogueCapacity : public Registry, public testing::WithParamInterface<CapacityRow>
{
};

TEST_P(CatalogueCapacity, IsReadAsANumberOrZero)
{
    const auto record = plugin.createTara(tara(2, GetParam().inCatalogue, 2));

    EXPECT_EQ(record->capacity, GetParam().capacity);
    EXPECT_EQ(record->freeCapacity, GetParam().capacity);
}

INSTANTIATE_TEST_SUITE_P(
    Values, CatalogueCapacity,
    testing::Values(CapacityRow{0.75, 1.5}, CapacityRow{3, 6.0}, CapacityRow{"2.5", 5.0},
                    CapacityRow{QByteArray("2.5"), 5.0}, CapacityRow{true, 2.0},
                    CapacityRow{-1.0, -2.0}, CapacityRow{QVariant(), 0.0},
                    CapacityRow{"ten litres", 0.0}, CapacityRow{"", 0.0},
                    CapacityRow{QVariantList{1.0}, 0.0}, CapacityRow{QVariantMap(), 0.0}));

TEST_F(CreateTara, CapacityThatIsNoNumber_IsAtOnceEmptyAndFull)
{
    const auto record = plugin.createTara(tara(2, "ten litres", 3));

    EXPECT_TRUE(record->isEmpty());
    EXPECT_TRUE(record->isFull());
}

} // namespace
