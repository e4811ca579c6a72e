#include "tests/host/Position.h"
#include "tests/support/Printers.h"

#include "host/Event.h"
#include "host/Quantity.h"

#include <gtest/gtest.h>

#include <QtCore/QDebug>
#include <QtCore/QMetaProperty>
#include <QtCore/QSequentialIterable>

#include <algorithm>
#include <functional>

namespace {

TEST(EventMetaType, Name_IsTheTypesOwn)
{
    EXPECT_STREQ(QMetaType::fromType<Event>().name(), "Event");
}

TEST(EventMetaType, Equality_IsTheEvents)
{
    const QMetaType type = QMetaType::fromType<Event>();
    const Event one = Event(EActivityListener::eventError).addArgument("a", 1);
    const Event same = Event(EActivityListener::eventError).addArgument("a", 1);
    const Event other = Event(EActivityListener::eventError).addArgument("a", 2);

    ASSERT_TRUE(type.isEqualityComparable());
    EXPECT_TRUE(type.equals(&one, &same));
    EXPECT_FALSE(type.equals(&one, &other));
}

class PositionMetaType : public testing::Test
{
protected:
    const QMetaType type = QMetaType::fromType<GoodsItemPtr>();
    const GoodsItemPtr one = position(1);
    const GoodsItemPtr same = one;
    const GoodsItemPtr other = position(1);
};

TEST_F(PositionMetaType, Equality_IsIdentity)
{
    ASSERT_TRUE(type.isEqualityComparable());
    EXPECT_TRUE(type.equals(&one, &same));
    EXPECT_FALSE(type.equals(&one, &other));
}

TEST_F(PositionMetaType, Ordering_IsThatOfThePointers)
{
    const auto expected =
        std::less<>()(one.get(), other.get()) ? QPartialOrdering::Less : QPartialOrdering::Greater;

    ASSERT_TRUE(type.isOrdered());
    EXPECT_TRUE(type.compare(&one, &other) == expected);
    EXPECT_FALSE(type.compare(&other, &one) == expected);
    EXPECT_TRUE(type.compare(&one, &same) == QPartialOrdering::Equivalent);
}

TEST_F(PositionMetaType, DebugOutput_ShowsThePointer)
{
    ASSERT_TRUE(type.hasRegisteredDebugStreamOperator());
    QString text;
    QDebug stream(&text);
    EXPECT_TRUE(QMetaType(type).debugStream(stream, &one));

    QString expected;
    QDebug(&expected) << one;
    EXPECT_EQ(text.trimmed(), expected.trimmed());
    EXPECT_TRUE(text.startsWith("QSharedPointer(")) << text.toStdString();
}

TEST_F(PositionMetaType, NullPosition_ConvertsToANullObject)
{
    EXPECT_EQ(QVariant::fromValue(GoodsItemPtr()).value<QObject *>(), nullptr);
}

TEST_F(PositionMetaType, InAVariant_KeepsThePositionAlive)
{
    GoodsItemPtr item = position(5);
    const QWeakPointer<GoodsItem> alive = item;
    QVariant wrapped = QVariant::fromValue(item);
    item.reset();

    EXPECT_FALSE(alive.isNull());
    wrapped.clear();
    EXPECT_TRUE(alive.isNull());
}

class PositionListMetaType : public testing::Test
{
protected:
    const GoodsItemPtrList positions{position(3), position(1), position(2)};
    const QVariant wrapped = QVariant::fromValue(positions);
};

TEST_F(PositionListMetaType, SequentialView_ShowsEveryPosition)
{
    const auto view = wrapped.value<QSequentialIterable>();

    ASSERT_EQ(view.size(), 3);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(view.at(i).value<GoodsItemPtr>(), positions[i]);
}

TEST_F(PositionListMetaType, SequentialView_KnowsItsElements)
{
    const auto view = wrapped.value<QSequentialIterable>();

    EXPECT_EQ(view.metaContainer().valueMetaType(), QMetaType::fromType<GoodsItemPtr>());
}

TEST_F(PositionListMetaType, MutableView_ChangesTheList)
{
    QVariant changed = wrapped;
    const GoodsItemPtr more = position(4);

    changed.view<QSequentialIterable>().addValue(QVariant::fromValue(more));

    EXPECT_EQ(changed.value<GoodsItemPtrList>(), positions + GoodsItemPtrList{more});
    EXPECT_EQ(wrapped.value<GoodsItemPtrList>(), positions);
}

TEST_F(PositionListMetaType, ReadsAsAListOfVariants)
{
    const QVariantList variants = wrapped.toList();

    ASSERT_EQ(variants.size(), 3);
    EXPECT_EQ(variants[0].value<GoodsItemPtr>(), positions[0]);
}

TEST_F(PositionListMetaType, Equality_IsThatOfThePositions)
{
    EXPECT_EQ(wrapped, QVariant::fromValue(GoodsItemPtrList(positions)));
    EXPECT_NE(wrapped, QVariant::fromValue(positions.mid(1)));
}

TEST_F(PositionListMetaType, SomethingElse_IsAnEmptyList)
{
    EXPECT_TRUE(QVariant(5).value<GoodsItemPtrList>().isEmpty());
    EXPECT_TRUE(QVariant().value<GoodsItemPtrList>().isEmpty());
}

class QuantityMetaType : public testing::Test
{
protected:
    const QMetaType type = QMetaType::fromType<Quantity>();
    const Quantity quantity{1.5, quantModeRecalculated};
};

TEST_F(QuantityMetaType, Amount_IsReadAsAProperty)
{
    const QMetaObject *meta = type.metaObject();
    const QMetaProperty amount = meta->property(meta->indexOfProperty("amount"));

    EXPECT_EQ(amount.readOnGadget(&quantity), 1.5);
    EXPECT_FALSE(amount.isWritable());
}

TEST_F(QuantityMetaType, Equality_IsTheQuantitys)
{
    const Quantity same = quantity;
    const Quantity other(1.5, quantModeNone);

    ASSERT_TRUE(type.isEqualityComparable());
    EXPECT_TRUE(type.equals(&quantity, &same));
    EXPECT_FALSE(type.equals(&quantity, &other));
}

} // namespace
