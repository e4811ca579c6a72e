#include "host/ActionQueueController.h"
#include "host/ActivityNotifier.h"
#include "host/Config.h"
#include "host/LoyaltySystemLayer.h"
#include "host/Session.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

//! A type of which the host library knows nothing.
struct UserDefined
{
    UserDefined() { ++made; }

    static inline int made = 0;
    int number = 5;
};

} // namespace

template <>
SingletonSlot<UserDefined> Singleton<UserDefined>::instance{};

namespace {

//! Starts with an empty slot, and leaves it so; what the slot made is deleted.
template <class T>
class Slot : public testing::Test
{
protected:
    Slot() { Singleton<T>::instance = nullptr; }
    ~Slot() override { Singleton<T>::instance = nullptr; }

    std::unique_ptr<T> mine = std::make_unique<T>();
};

using SlotTypes = testing::Types<Config, Session, ActivityNotifier, ActionQueueController,
                                 LoyaltySystemLayer, UserDefined>;
TYPED_TEST_SUITE(Slot, SlotTypes);

TYPED_TEST(Slot, Empty_TestsFalse)
{
    EXPECT_FALSE(Singleton<TypeParam>::instance);
    EXPECT_TRUE(Singleton<TypeParam>::instance == nullptr);
}

TYPED_TEST(Slot, TestForNull_MakesNothing)
{
    EXPECT_FALSE(Singleton<TypeParam>::instance);
    EXPECT_FALSE(Singleton<TypeParam>::instance);
}

TYPED_TEST(Slot, FirstUse_MakesTheObject)
{
    const std::unique_ptr<TypeParam> made(Singleton<TypeParam>::instance());

    ASSERT_NE(made, nullptr);
    EXPECT_TRUE(Singleton<TypeParam>::instance);
    EXPECT_TRUE(Singleton<TypeParam>::instance == made.get());
}

TYPED_TEST(Slot, AssignedObject_IsUsedInsteadOfANewOne)
{
    Singleton<TypeParam>::instance = this->mine.get();

    EXPECT_TRUE(Singleton<TypeParam>::instance);
    EXPECT_EQ(Singleton<TypeParam>::instance(), this->mine.get());
    EXPECT_EQ(Singleton<TypeParam>::instance.operator->(), this->mine.get());
}

TYPED_TEST(Slot, AssignedOverAnother_LeavesTheOldOneToItsOwner)
{
    const auto other = std::make_unique<TypeParam>();
    Singleton<TypeParam>::instance = this->mine.get();
    Singleton<TypeParam>::instance = other.get();

    EXPECT_EQ(Singleton<TypeParam>::instance(), other.get());
}

TYPED_TEST(Slot, Emptied_MakesANewObjectAtTheNextUse)
{
    Singleton<TypeParam>::instance = this->mine.get();
    Singleton<TypeParam>::instance = nullptr;
    const std::unique_ptr<TypeParam> made(Singleton<TypeParam>::instance());

    EXPECT_NE(made, nullptr);
    EXPECT_NE(made, this->mine);
}

TYPED_TEST(Slot, Contents_ReadAsAPointer)
{
    Singleton<TypeParam>::instance = this->mine.get();
    TypeParam *const read = Singleton<TypeParam>::instance;

    EXPECT_EQ(read, this->mine.get());
}

using UserDefinedSlot = Slot<UserDefined>;

TEST_F(UserDefinedSlot, Arrow_ReachesTheMembers)
{
    Singleton<UserDefined>::instance = mine.get();
    Singleton<UserDefined>::instance->number = 6;

    EXPECT_EQ(mine->number, 6);
}

TEST_F(UserDefinedSlot, ObjectIsMade_OnlyOnFirstUse)
{
    UserDefined::made = 0;
    EXPECT_FALSE(Singleton<UserDefined>::instance);
    EXPECT_EQ(UserDefined::made, 0);

    const std::unique_ptr<UserDefined> made(Singleton<UserDefined>::instance());
    Singleton<UserDefined>::instance();

    EXPECT_EQ(UserDefined::made, 1);
}

using ActionQueueSlot = Slot<ActionQueueController>;

TEST_F(ActionQueueSlot, ObjectMadeOnFirstUse_HasNoParent)
{
    const std::unique_ptr<ActionQueueController> made(Singleton<ActionQueueController>::instance());

    EXPECT_EQ(made->parent(), nullptr);
}

using ConfigSlot = Slot<Config>;

TEST_F(ConfigSlot, AssignedSubclass_AnswersThroughTheSlot)
{
    struct Forbidding : Config
    {
        bool getBool(const QString &, bool) const override { return false; }
    } forbidding;
    Singleton<Config>::instance = &forbidding;

    EXPECT_FALSE(Singleton<Config>::instance()->getBool("any", true));
}

} // namespace
