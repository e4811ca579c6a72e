#include "window/look/GoodsLook.h"

#include <QtGui/QPainter>

#include <iterator>

namespace till {

namespace {

// Chosen so that they differ in lightness too.
constexpr QRgb colours[] = {0xffe69f00, 0xff56b4e9, 0xff009e73, 0xfff0e442,
                            0xff0072b2, 0xffd55e00, 0xffcc79a7};
// As many as leave no divisor in common with the colours: every pair comes up before one does
// again.
constexpr Qt::BrushStyle patterns[] = {Qt::NoBrush,    Qt::BDiagPattern, Qt::Dense6Pattern,
                                       Qt::HorPattern, Qt::FDiagPattern, Qt::DiagCrossPattern};

} // namespace

GoodsLook GoodsLook::of(int ordinal)
{
    const auto number = static_cast<size_t>(ordinal);
    return {QColor::fromRgb(colours[number % std::size(colours)]),
            patterns[number % std::size(patterns)]};
}

QColor GoodsLook::ink() const
{
    constexpr int light = 90; // from here on black is read better
    return qGray(colour.rgb()) > light ? Qt::black : Qt::white;
}

void GoodsLook::fill(QPainter &painter, const QRectF &area) const
{
    painter.fillRect(area, colour);
    if (pattern == Qt::NoBrush)
        return;
    QColor lines = ink();
    lines.setAlphaF(0.45F);
    painter.fillRect(area, QBrush(lines, pattern));
}

} // namespace till
