#include "host/Dialog.h"
#include "host/DocumentLogic.h"

#include <gtest/gtest.h>

namespace {

//! A type of which the host library knows nothing.
struct Maker
{
    virtual ~Maker() = default;
    virtual bool isSubstitute() const { return false; }
};

} // namespace

template <>
QSharedPointer<Maker> MockFactory<Maker>::mocked{};

namespace {

template <class T>
class Factory : public testing::Test
{
protected:
    Factory() { MockFactory<T>::mocked.reset(); }
    ~Factory() override { MockFactory<T>::mocked.reset(); }
};

using FactoryTypes = testing::Types<Dialog, DocumentLogic, Maker>;
TYPED_TEST_SUITE(Factory, FactoryTypes);

TYPED_TEST(Factory, NoSubstitute_MakesANewObjectEachTime)
{
    const auto first = MockFactory<TypeParam>::create();
    const auto second = MockFactory<TypeParam>::create();

    ASSERT_FALSE(first.isNull());
    ASSERT_FALSE(second.isNull());
    EXPECT_NE(first, second);
}

TYPED_TEST(Factory, NewObject_IsNotKept)
{
    const QWeakPointer<TypeParam> made = MockFactory<TypeParam>::create();

    EXPECT_TRUE(made.isNull());
    EXPECT_TRUE(MockFactory<TypeParam>::mocked.isNull());
}

TYPED_TEST(Factory, Substitute_OutlivesItsUse)
{
    MockFactory<TypeParam>::mocked.reset(new TypeParam);
    const auto *substitute = MockFactory<TypeParam>::mocked.get();
    MockFactory<TypeParam>::create().reset();

    EXPECT_EQ(MockFactory<TypeParam>::create().get(), substitute);
}

TYPED_TEST(Factory, SubstituteTakenAway_NewObjectsAgain)
{
    const QSharedPointer<TypeParam> substitute(new TypeParam);
    MockFactory<TypeParam>::mocked = substitute;
    MockFactory<TypeParam>::mocked.reset();

    EXPECT_NE(MockFactory<TypeParam>::create(), substitute);
}

using MakerFactory = Factory<Maker>;

TEST_F(MakerFactory, SubstituteOfASubclass_IsCalled)
{
    struct Substitute : Maker
    {
        bool isSubstitute() const override { return true; }
    };
    EXPECT_FALSE(MockFactory<Maker>::create()->isSubstitute());

    MockFactory<Maker>::mocked.reset(new Substitute);

    EXPECT_TRUE(MockFactory<Maker>::create()->isSubstitute());
}

} // namespace
