#include "window/shelf/VesselDelegate.h"

#include "window/look/Paints.h"
#include "window/shelf/VesselModel.h"

#include <QtGui/QPainter>
#include <QtWidgets/QAbstractItemView>

#include <algorithm>
#include <cmath>

namespace till {

namespace {

constexpr double tallest = 84.0;  //!< pixels of the greatest vessel in the least room
constexpr double shortest = 40.0; //!< of it on a screen that is small for its font
constexpr double lowest = 22.0;
constexpr double overflowRoom = 14.0; //!< above the brim
constexpr int textLines = 4;          // name, amounts, and two for how full it is
constexpr int padding = 4;

//! The vessel within \a room, standing on its bottom. Its area follows the capacity.
QRectF vesselIn(const QRectF &room, double capacity, double greatest)
{
    const double share = greatest > 0 ? std::sqrt(std::clamp(capacity / greatest, 0.0, 1.0)) : 1.0;
    const double height = std::max(lowest, (room.height() - overflowRoom) * share);
    const double width = std::max(lowest, room.width() * 0.62 * share);
    return {room.center().x() - width / 2, room.bottom() - height, width, height};
}

void drawLayer(QPainter &painter, const QRectF &area, const GoodsLook &look, bool isDimmed)
{
    painter.setOpacity(isDimmed ? 0.4 : 1.0);
    look.fill(painter, area);
    painter.setOpacity(1.0);
}

//! What does not go in: a head above the brim that runs down on both sides.
void drawOverflow(QPainter &painter, const QRectF &vessel, const GoodsLook &look,
                  const QColor &warning)
{
    constexpr double thickness = 5.0;
    const QRectF head(vessel.left() - thickness, vessel.top() - overflowRoom + thickness,
                      vessel.width() + 2 * thickness, overflowRoom - thickness);
    look.fill(painter, head);
    for (const double left : {vessel.left() - thickness, vessel.right()})
        look.fill(painter, QRectF(left, vessel.top(), thickness, vessel.height() * 0.7));
    painter.setPen(QPen(warning, 2));
    painter.drawRect(head);
}

void drawVessel(QPainter &painter, const QRectF &room, const VesselModel &model, int row,
                const QPalette &palette)
{
    const Filling filling = model.fillingAt(row);
    const QRectF vessel = vesselIn(room, filling.capacity, model.greatestCapacity());
    painter.fillRect(vessel, palette.color(QPalette::Base));
    const double whole = std::max(filling.capacity, 0.001);
    double level = vessel.bottom();
    for (const Filling::Layer &layer : filling.layers) {
        const double height =
            std::min(vessel.height() * layer.amount / whole, level - vessel.top());
        level -= height;
        drawLayer(painter, QRectF(vessel.left(), level, vessel.width(), height), layer.look,
                  model.lightsAny() && !model.isLit(layer.posnum));
    }
    if (filling.amount() > filling.capacity + 0.0005 && !filling.layers.isEmpty())
        drawOverflow(painter, vessel, filling.layers.last().look, warningColour(palette));
    painter.setPen(QPen(palette.color(QPalette::Text), 2));
    painter.drawPolyline(QPolygonF(
        {vessel.topLeft(), vessel.bottomLeft(), vessel.bottomRight(), vessel.topRight()}));
}

} // namespace

QSize VesselDelegate::leastRoom(const QFont &font)
{
    const QFontMetrics metrics(font);
    return {std::max(metrics.averageCharWidth() * 16, touchHeight),
            static_cast<int>(tallest + overflowRoom) + textLines * metrics.height() + 3 * padding};
}

QSize VesselDelegate::shortestRoom(const QFont &font)
{
    return leastRoom(font) - QSize(0, static_cast<int>(tallest - shortest));
}

QSize VesselDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    const QSize least = leastRoom(option.font);
    const auto *const shelf = qobject_cast<const QAbstractItemView *>(option.widget);
    const int height =
        shelf ? std::max(shelf->viewport()->height(), shortestRoom(option.font).height())
              : least.height();
    const int taller = std::max(height, least.height());
    return {least.width() * (2 * least.height() + taller) / (3 * least.height()), height};
}

void VesselDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                           const QModelIndex &index) const
{
    const auto &model = static_cast<const VesselModel &>(*index.model());
    painter->save();
    painter->setFont(option.font);
    const QRect inside = option.rect.adjusted(padding, padding, -padding, -padding);
    painter->fillRect(option.rect, option.palette.color(QPalette::Base));
    if (option.state.testFlag(QStyle::State_Selected)) {
        QColor selected = option.palette.color(QPalette::Highlight);
        selected.setAlphaF(0.25F);
        painter->fillRect(option.rect, selected);
        painter->setPen(QPen(option.palette.color(QPalette::Highlight), 2));
        painter->drawRect(option.rect.adjusted(1, 1, -1, -1));
    }
    const int line = painter->fontMetrics().height();
    const QRect texts(inside.left(), inside.bottom() - textLines * line, inside.width(),
                      textLines * line);
    drawVessel(*painter, QRectF(inside).adjusted(0, 0, 0, -textLines * line - padding), model,
               index.row(), option.palette);
    const QStringList lines{index.data().toString(), model.amountsAt(index.row())};
    for (int number = 0; number < lines.size(); ++number)
        drawPieces(*painter, QRect(texts.left(), texts.top() + number * line, texts.width(), line),
                   {{lines[number]}}, option.palette);
    const Piece fill = model.fillTextAt(index.row());
    painter->setFont(fontOf(option.font, fill.paint));
    painter->setPen(colourOf(fill.paint, option.palette));
    painter->drawText(texts.adjusted(0, 2 * line, 0, 0), Qt::AlignLeft | Qt::TextWordWrap,
                      fill.text);
    painter->restore();
}

} // namespace till
