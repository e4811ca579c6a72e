#include "tests/registry/RegistryFixture.h"

// A subclass that overrides an operation sees the calls that the other operations make to it.

namespace {

//! Journals the calls it sees, and answers what it was told to.
class Overriding : public TestPlugin
{
public:
    QString getId() const override
    {
        calls << "getId";
        return "{mine}";
    }

    QSharedPointer<TaraInfo> getTaraByPosnum(int posnum) const override
    {
        calls << QString("getTaraByPosnum %1").arg(posnum);
        return foundTara;
    }

    QSharedPointer<PackagingInfo> getPackagingInfoByPosnum(int posnum) const override
    {
        calls << QString("getPackagingInfoByPosnum %1").arg(posnum);
        return foundGoods;
    }

    void modifyTaraCapacity(const QSharedPointer<TaraInfo> &tara, double newCapacity) override
    {
        calls << QString("modifyTaraCapacity %1 %2").arg(tara->id).arg(newCapacity);
    }

    void modifyPackagingUsedCapacity(const QSharedPointer<PackagingInfo> &info,
                                     double newUsedCapacity) override
    {
        calls
            << QString("modifyPackagingUsedCapacity %1 %2").arg(info->posnum).arg(newUsedCapacity);
    }

    mutable QStringList calls;
    QSharedPointer<TaraInfo> foundTara;
    QSharedPointer<PackagingInfo> foundGoods;
};

class VirtualCalls : public Registry
{
protected:
    Overriding subject;
};

TEST_F(VirtualCalls, CreateTaraOfAnUnknownPosition_LooksUpThenNames)
{
    const auto record = subject.createTara(tara(2, 0.5, 3));

    EXPECT_EQ(subject.calls, (QStringList{"getTaraByPosnum 2", "getId"}));
    EXPECT_EQ(record->id, "{mine}");
}

TEST_F(VirtualCalls, CreateTaraOfAKnownPosition_LooksUpThenResizes)
{
    subject.foundTara.reset(new PackagingControl::TaraInfo{7, "{found}", 1.0, 1.0});

    EXPECT_EQ(subject.createTara(tara(2, 0.5, 3)), subject.foundTara);
    EXPECT_EQ(subject.calls, (QStringList{"getTaraByPosnum 2", "modifyTaraCapacity {found} 1.5"}));
    EXPECT_EQ(*subject.foundTara, (PackagingControl::TaraInfo{7, "{found}", 1.0, 1.0}));
    EXPECT_THAT(subject.taraList, testing::IsEmpty());
}

TEST_F(VirtualCalls, CreatePackagingInfo_LooksUpThenPours)
{
    subject.foundGoods.reset(new PackagingControl::PackagingInfo{7, {}});

    EXPECT_EQ(subject.createPackagingInfo(goods(3, 4.5)), subject.foundGoods);
    EXPECT_EQ(subject.calls,
              (QStringList{"getPackagingInfoByPosnum 3", "modifyPackagingUsedCapacity 3 4.5"}));
    EXPECT_EQ(subject.foundGoods->posnum, 3);
    EXPECT_THAT(subject.packagingList, testing::ElementsAre(subject.foundGoods));
}

TEST_F(VirtualCalls, IsTaraSplitted_LooksUp)
{
    subject.foundTara.reset(new PackagingControl::TaraInfo{7, "{found}", 1.0, 1.0});
    subject.putGoods(3, {{"{found}", 1.0}});
    subject.putGoods(4, {{"{found}", 1.0}});

    EXPECT_TRUE(subject.isTaraSplitted(tara(2, 1.0)));
    EXPECT_EQ(subject.calls, QStringList{"getTaraByPosnum 2"});
}

TEST_F(VirtualCalls, IsTaraSplittedWithoutGoods_LooksUpToo)
{
    EXPECT_FALSE(subject.isTaraSplitted(tara(2, 1.0)));
    EXPECT_EQ(subject.calls, QStringList{"getTaraByPosnum 2"});
}

TEST_F(VirtualCalls, IsTaraPartialFilled_LooksUp)
{
    subject.foundTara.reset(new PackagingControl::TaraInfo{7, "{found}", 1.0, 0.5});

    EXPECT_TRUE(subject.isTaraPartialFilled(tara(2, 1.0)));
    EXPECT_EQ(subject.calls, QStringList{"getTaraByPosnum 2"});
}

} // namespace
