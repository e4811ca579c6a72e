#include "window/look/GoodsLook.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using till::GoodsLook;

namespace {

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
           + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor &one, const QColor &other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

TEST(GoodsLook, First42Positions_LookDifferent)
{
    for (int one = 0; one < 42; ++one) {
        for (int other = 0; other < one; ++other)
            EXPECT_FALSE(GoodsLook::of(one) == GoodsLook::of(other)) << one << " and " << other;
    }
}

TEST(GoodsLook, Neighbours_DifferInColourAndInPattern)
{
    for (int ordinal = 0; ordinal < 100; ++ordinal) {
        EXPECT_NE(GoodsLook::of(ordinal).colour, GoodsLook::of(ordinal + 1).colour) << ordinal;
        EXPECT_NE(GoodsLook::of(ordinal).pattern, GoodsLook::of(ordinal + 1).pattern) << ordinal;
    }
}

TEST(GoodsLook, Ink_IsReadOnItsColour)
{
    for (int ordinal = 0; ordinal < 42; ++ordinal) {
        const GoodsLook look = GoodsLook::of(ordinal);
        EXPECT_GE(contrast(look.ink(), look.colour), 4.5) << look.colour.name().toStdString();
    }
}

TEST(GoodsLook, PatternWithoutColour_IsSeen)
{
    const auto drawn = [](int ordinal) {
        QImage image(32, 32, QImage::Format_RGB32);
        QPainter painter(&image);
        GoodsLook look = GoodsLook::of(ordinal);
        look.colour = Qt::gray;
        look.fill(painter, image.rect());
        return image;
    };
    for (int ordinal = 0; ordinal < 5; ++ordinal)
        EXPECT_NE(drawn(ordinal), drawn(ordinal + 1)) << ordinal;
}

} // namespace
