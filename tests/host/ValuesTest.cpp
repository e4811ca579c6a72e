#include "tests/support/Printers.h"

#include "host/ModifiersContainer.h"
#include "host/Quantity.h"
#include "host/Tr.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

constexpr auto otherMode = static_cast<EQuantMode>(3);
constexpr auto otherModifier = static_cast<modifiers::Type>(8);

TEST(QuantityValue, NewQuantity_HasAmountAndMode)
{
    const Quantity quantity(1.5, quantModeRecalculated);

    EXPECT_EQ(quantity.amount(), 1.5);
    EXPECT_EQ(quantity.mode(), 7);
}

TEST(QuantityValue, DefaultQuantity_IsNothing)
{
    EXPECT_EQ(Quantity().amount(), 0.0);
    EXPECT_EQ(Quantity().mode(), quantModeNone);
}

TEST(QuantityValue, OtherMode_Differs)
{
    EXPECT_FALSE(Quantity(1.5, quantModeRecalculated) == Quantity(1.5, otherMode));
    EXPECT_TRUE(Quantity(1.5, quantModeRecalculated) != Quantity(1.5, otherMode));
}

TEST(Message, NewMessage_HasKeyAndText)
{
    const tr::Tr message("key", "Текст");

    EXPECT_EQ(message.key(), "key");
    EXPECT_EQ(message.text(), "Текст");
}

TEST(Message, ThroughAVariant_ComesBackTheSame)
{
    const tr::Tr message("key", "Текст");
    const QVariant wrapped = message;

    EXPECT_EQ(wrapped.metaType(), QMetaType::fromType<tr::Tr>());
    EXPECT_EQ(wrapped.value<tr::Tr>().key(), "key");
    EXPECT_EQ(wrapped.value<tr::Tr>().text(), "Текст");
}

TEST(Message, TemporaryWrapped_OutlivesIt)
{
    const QVariant wrapped = tr::Tr("key", "Текст");

    EXPECT_EQ(wrapped.value<tr::Tr>(), tr::Tr("key", "Текст"));
}

TEST(Message, VariantOfSomethingElse_IsNoMessage)
{
    EXPECT_EQ(QVariant("Текст").value<tr::Tr>(), tr::Tr());
}

TEST(Message, Equality_NeedsKeyAndText)
{
    EXPECT_TRUE(tr::Tr("k", "t") == tr::Tr("k", "t"));
    EXPECT_FALSE(tr::Tr("k", "t") != tr::Tr("k", "t"));
    EXPECT_TRUE(tr::Tr("k", "t") != tr::Tr("k", "u"));
    EXPECT_FALSE(tr::Tr("k", "t") == tr::Tr("l", "t"));
}

TEST(Modifiers, NewContainer_HasNone)
{
    const ModifiersContainer container;

    EXPECT_FALSE(container.isSet(modifiers::Quantity));
    EXPECT_FALSE(container.value(modifiers::Quantity).isValid());
}

TEST(Modifiers, SetModifier_IsReadBack)
{
    ModifiersContainer container;
    const Quantity quantity(2, quantModeRecalculated);
    container.set(modifiers::Quantity, QVariant::fromValue(quantity));

    EXPECT_TRUE(container.isSet(modifiers::Quantity));
    EXPECT_EQ(container.value(modifiers::Quantity).value<Quantity>(), quantity);
}

TEST(Modifiers, SetAgain_ReplacesTheValue)
{
    ModifiersContainer container;
    container.set(modifiers::Quantity, 1);
    container.set(modifiers::Quantity, 2);

    EXPECT_EQ(container.value(modifiers::Quantity), 2);
}

TEST(Modifiers, InvalidValue_IsSetNevertheless)
{
    ModifiersContainer container;
    container.set(modifiers::Quantity, QVariant());

    EXPECT_TRUE(container.isSet(modifiers::Quantity));
}

TEST(Modifiers, OtherKind_IsNotTouched)
{
    ModifiersContainer container;
    container.set(otherModifier, "discount");

    EXPECT_FALSE(container.isSet(modifiers::Quantity));
    EXPECT_EQ(container.value(otherModifier), "discount");
}

TEST(Modifiers, ClearAll_RemovesEveryKind)
{
    ModifiersContainer container;
    container.set(modifiers::Quantity, 1);
    container.set(otherModifier, 2);

    container.clearAll();

    EXPECT_FALSE(container.isSet(modifiers::Quantity));
    EXPECT_FALSE(container.isSet(otherModifier));
    EXPECT_FALSE(container.value(otherModifier).isValid());
}

} // namespace
