#include "tests/registry/RegistryFixture.h"
#include "tests/support/Numbers.h"

namespace {

class TaraShared : public Registry
{
protected:
    TaraShared() { plugin.putTara(2, "{a}", 10.0, 5.0); }

    bool isShared() const { return plugin.isTaraSplitted(position); }

    QSharedPointer<GoodsItem> position = tara(2, 10.0);
};

TEST_F(TaraShared, NoGoods_False)
{
    EXPECT_FALSE(isShared());
}

TEST_F(TaraShared, OneGoodsPosition_False)
{
    plugin.putGoods(3, {{"{a}", 5.0}});

    EXPECT_FALSE(isShared());
}

TEST_F(TaraShared, TwoGoodsPositions_True)
{
    plugin.putGoods(3, {{"{a}", 3.0}});
    plugin.putGoods(4, {{"{a}", 2.0}});

    EXPECT_TRUE(isShared());
}

TEST_F(TaraShared, ThreeGoodsPositions_True)
{
    plugin.putGoods(3, {{"{a}", 3.0}});
    plugin.putGoods(4, {{"{a}", 1.0}});
    plugin.putGoods(5, {{"{a}", 1.0}});

    EXPECT_TRUE(isShared());
}

TEST_F(TaraShared, GoodsInNoTaraBeforeTwoUsers_True)
{
    plugin.putTara(7, "{b}", 10.0, 5.0);
    plugin.putGoods(3, {{"{b}", 3.0}});
    plugin.putGoods(4);
    plugin.putGoods(5, {{"{a}", 1.0}});
    plugin.putGoods(6, {{"{a}", 1.0}});

    EXPECT_TRUE(isShared());
}

TEST_F(TaraShared, UsersOfDescendingNumbers_True)
{
    plugin.putGoods(6, {{"{a}", 1.0}});
    plugin.putGoods(5, {{"{a}", 1.0}});

    EXPECT_TRUE(isShared());
}

TEST_F(TaraShared, TwoRecordsOfOneNumber_False)
{
    plugin.putGoods(3, {{"{a}", 3.0}});
    plugin.putGoods(3, {{"{a}", 2.0}});

    EXPECT_FALSE(isShared());
}

TEST_F(TaraShared, EntryOfValueZero_Counts)
{
    plugin.putGoods(3, {{"{a}", 3.0}});
    plugin.putGoods(4, {{"{a}", 0.0}});

    EXPECT_TRUE(isShared());
}

TEST_F(TaraShared, EntriesBelowZeroAndNotANumber_Count)
{
    plugin.putGoods(3, {{"{a}", -1.0}});
    plugin.putGoods(4, {{"{a}", notANumber}});

    EXPECT_TRUE(isShared());
}

TEST_F(TaraShared, OneGoodsPositionInSeveralTara_False)
{
    plugin.putTara(7, "{b}", 10.0, 5.0);
    plugin.putGoods(3, {{"{a}", 5.0}, {"{b}", 5.0}});

    EXPECT_FALSE(isShared());
}

TEST_F(TaraShared, SecondGoodsInAnotherTara_False)
{
    plugin.putTara(7, "{b}", 10.0, 5.0);
    plugin.putGoods(3, {{"{a}", 5.0}});
    plugin.putGoods(4, {{"{b}", 5.0}});

    EXPECT_FALSE(isShared());
}

TEST_F(TaraShared, SecondGoodsInNoTara_False)
{
    plugin.putGoods(3, {{"{a}", 5.0}});
    plugin.putGoods(4);

    EXPECT_FALSE(isShared());
}

TEST_F(TaraShared, IdentifierInAnotherCase_IsAnother)
{
    plugin.putGoods(3, {{"{a}", 5.0}});
    plugin.putGoods(4, {{"{A}", 5.0}});

    EXPECT_FALSE(isShared());
}

TEST_F(TaraShared, IdentifierWithASpace_IsAnother)
{
    plugin.putGoods(3, {{"{a}", 5.0}});
    plugin.putGoods(4, {{"{a} ", 5.0}});

    EXPECT_FALSE(isShared());
}

TEST_F(TaraShared, PositionNumberZeroAmongTheGoods_Counts)
{
    plugin.putGoods(0, {{"{a}", 5.0}});
    plugin.putGoods(4, {{"{a}", 5.0}});

    EXPECT_TRUE(isShared());
}

TEST_F(TaraShared, UnknownTara_False)
{
    // Nothing is keyed by the empty identifier that a missing record might be taken for.
    plugin.putGoods(3, {{"{a}", 5.0}, {QString(), 1.0}});
    plugin.putGoods(4, {{"{a}", 5.0}, {QString(), 1.0}});

    EXPECT_FALSE(plugin.isTaraSplitted(tara(9, 10.0)));
}

TEST_F(TaraShared, Asking_ChangesAndLogsNothing)
{
    const auto user = plugin.putGoods(3, {{"{b}", 5.0}});

    isShared();

    EXPECT_EQ(*user, (PackagingControl::PackagingInfo{3, {{"{b}", 5.0}}}));
    EXPECT_EQ(*plugin.taraList[0], (PackagingControl::TaraInfo{2, "{a}", 10.0, 5.0}));
    EXPECT_EQ(log.lines(), QStringList());
    EXPECT_EQ(host.journal, QStringList());
}

struct PartRow
{
    double capacity;
    double freeCapacity;
    bool partly;
};

void PrintTo(const PartRow &row, std::ostream *out)
{
    *out << "capacity " << row.capacity << " free " << row.freeCapacity;
}

class TaraPartlyFilled : public Registry, public testing::WithParamInterface<PartRow>
{
};

TEST_P(TaraPartlyFilled, IsNeitherEmptyNorFull)
{
    plugin.putTara(2, "{a}", GetParam().capacity, GetParam().freeCapacity);

    EXPECT_EQ(plugin.isTaraPartialFilled(tara(2, 1.0)), GetParam().partly);
}

INSTANTIATE_TEST_SUITE_P(Rows, TaraPartlyFilled,
                         testing::Values(PartRow{1.0, 1.0, false}, PartRow{1.0, 0.0, false},
                                         PartRow{1.0, 0.5, true}, PartRow{1.0, 0.9996, false},
                                         PartRow{1.0, 0.0004, false}, PartRow{1.0, 0.999, true},
                                         PartRow{1.0, 0.001, true}, PartRow{1.0, -0.0004, false},
                                         PartRow{1.0, -0.001, true}, PartRow{1.0, -5.0, true},
                                         PartRow{1.0, 1.5, true}, PartRow{0.0, 0.0, false},
                                         PartRow{1.0, 0.0005, true}, PartRow{1.0, justBelow, false},
                                         PartRow{0.001, 0.0005, true},
                                         PartRow{1.0, notANumber, true},
                                         PartRow{notANumber, 0.0, false}));

class TaraPartlyFilledQuery : public Registry
{
};

TEST_F(TaraPartlyFilledQuery, UnknownTara_False)
{
    plugin.putTara(2, "{a}", 1.0, 0.5);

    EXPECT_FALSE(plugin.isTaraPartialFilled(tara(9, 1.0)));
}

TEST_F(TaraPartlyFilledQuery, NoTaraAtAll_False)
{
    EXPECT_FALSE(plugin.isTaraPartialFilled(tara(9, 1.0)));
}

TEST_F(TaraPartlyFilledQuery, TwoRecordsOfOneNumber_TheFirstIsAsked)
{
    plugin.putTara(2, "{a}", 1.0, 0.5);
    plugin.putTara(2, "{b}", 1.0, 1.0);

    EXPECT_TRUE(plugin.isTaraPartialFilled(tara(2, 1.0)));
}

} // namespace
