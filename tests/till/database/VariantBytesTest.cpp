#include "till/database/VariantBytes.h"

#include "till/receipt/ValueChange.h"

#include <gtest/gtest.h>

#include <limits>

namespace till {

namespace {

//! Values that differ as bytes, although many of them count as equal or look alike.
QVariantList alike()
{
    const QVariantList leaves{0,
                              false,
                              0.0,
                              -0.0,
                              1,
                              true,
                              1.0,
                              std::numeric_limits<double>::quiet_NaN(),
                              "",
                              QString(),
                              "1",
                              "Пиво",
                              QVariant(QMetaType::fromType<int>()),
                              QVariantList(),
                              QVariantMap()};
    QVariantList values = leaves;
    for (const QVariant &leaf : leaves) {
        values << QVariant(QVariantList{leaf}) << QVariant(QVariantList{1, leaf})
               << QVariantMap{{"", leaf}} << QVariantMap{{QString(), leaf}}
               << QVariantMap{{"a", 1}, {"b", leaf}};
    }
    return values;
}

QByteArray bytesOf(const QVariant &value)
{
    const auto bytes = VariantBytes::of(value);
    return bytes ? bytes->bytes : QByteArray();
}

TEST(SurelySame, WhatIsMadeAnew_IsTheSame)
{
    const QVariantList one = alike();
    const QVariantList other = alike();
    for (qsizetype i = 0; i < one.size(); ++i)
        EXPECT_TRUE(areSurelySame(one[i], other[i])) << i;
}

TEST(SurelySame, WhatHasOtherBytes_IsNot)
{
    const QVariantList values = alike();
    for (qsizetype i = 0; i < values.size(); ++i) {
        for (qsizetype j = 0; j < i; ++j) {
            ASSERT_NE(bytesOf(values[i]), bytesOf(values[j])) << i << ' ' << j;
            EXPECT_FALSE(areSurelySame(values[i], values[j])) << i << ' ' << j;
        }
    }
}

TEST(SurelySame, OfATypeThatIsNotLookedInto_CannotBeTold)
{
    EXPECT_FALSE(areSurelySame(QVariant(), QVariant()));
    EXPECT_FALSE(areSurelySame(QByteArray("a"), QByteArray("a")));
    EXPECT_FALSE(areSurelySame(QVariantList{1LL}, QVariantList{1LL}));
}

} // namespace

} // namespace till
