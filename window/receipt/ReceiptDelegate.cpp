#include "window/receipt/ReceiptDelegate.h"

#include "window/look/Paints.h"
#include "window/receipt/ReceiptModel.h"

#include <QtGui/QPainter>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableView>

namespace till {

namespace {

constexpr int margin = 4;
constexpr int barWidth = 96;

const ReceiptModel &modelOf(const QModelIndex &index)
{
    return static_cast<const ReceiptModel &>(*index.model());
}

//! The bar of a tara; what does not go in stands behind its end.
void drawBar(QPainter &painter, const QRectF &area, const Filling &filling, const QPalette &palette)
{
    const double whole = std::max({filling.capacity, filling.amount(), 0.001});
    double left = area.left();
    for (const Filling::Layer &layer : filling.layers) {
        const double width = area.width() * layer.amount / whole;
        layer.look.fill(painter, QRectF(left, area.top(), width, area.height()));
        left += width;
    }
    const double brim = area.width() * std::max(filling.capacity, 0.0) / whole;
    painter.setPen(palette.color(QPalette::Text));
    painter.drawRect(QRectF(area.left(), area.top(), brim, area.height()));
    if (filling.amount() <= filling.capacity)
        return;
    painter.setPen(QPen(warningColour(palette), 2));
    painter.drawRect(area.adjusted(-1, -1, 1, 1));
}

void drawBackground(QPainter &painter, const QStyleOptionViewItem &option, bool isLit)
{
    painter.fillRect(option.rect, option.palette.color(QPalette::Base));
    if (option.state.testFlag(QStyle::State_Selected)) {
        QColor selected = option.palette.color(QPalette::Highlight);
        selected.setAlphaF(0.25F);
        painter.fillRect(option.rect, selected);
    }
    if (isLit) {
        QColor lit = GoodsLook::of(3).colour;
        lit.setAlphaF(0.45F);
        painter.fillRect(option.rect, lit);
    }
}

//! The sample of goods, or the bar of a tara, at the left of \a line; what is left of it.
QRect drawSample(QPainter &painter, QRect line, const ReceiptModel &model, int row,
                 const QPalette &palette)
{
    const int height = line.height() - margin;
    if (const auto filling = model.fillingAt(row)) {
        drawBar(painter, QRectF(line.left(), line.top() + margin / 2.0, barWidth, height), *filling,
                palette);
        line.setLeft(line.left() + barWidth + 2 * margin);
    } else if (const auto look = model.lookAt(row)) {
        const QRectF sample(line.left(), line.top() + margin / 2.0, 2.0 * height, height);
        look->fill(painter, sample);
        painter.setPen(palette.color(QPalette::Text));
        painter.drawRect(sample);
        line.setLeft(line.left() + 2 * height + 2 * margin);
    }
    return line;
}

void drawCell(QPainter &painter, const QRect &area, const QModelIndex &index, bool isStornoed)
{
    QFont font = painter.font();
    font.setStrikeOut(isStornoed);
    painter.setFont(font);
    const QString text = index.data(Qt::DisplayRole).toString();
    const auto alignment =
        index.data(Qt::TextAlignmentRole).value<Qt::Alignment>() | Qt::TextSingleLine;
    painter.drawText(area, static_cast<int>(alignment),
                     painter.fontMetrics().elidedText(text, Qt::ElideRight, area.width()));
    font.setStrikeOut(false);
    painter.setFont(font);
}

} // namespace

ReceiptDelegate::ReceiptDelegate(QTableView &table)
    : QStyledItemDelegate(&table)
    , m_table(table)
{
}

int ReceiptDelegate::rowHeight() const
{
    return std::max(2 * m_table.fontMetrics().height() + 2 * margin, touchHeight);
}

QRect ReceiptDelegate::wholeRow(const QStyleOptionViewItem &option) const
{
    QRect row = option.rect;
    row.setLeft(m_table.columnViewportPosition(0));
    row.setWidth(m_table.horizontalHeader()->length());
    return row;
}

void ReceiptDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    const ReceiptModel &model = modelOf(index);
    const int row = index.row();
    painter->save();
    painter->setClipRect(option.rect);
    painter->setFont(option.font);
    drawBackground(*painter, option, model.isLit(row));
    const int half = option.rect.height() / 2;
    const auto group = model.isStornoed(row) ? QPalette::Disabled : QPalette::Active;
    painter->setPen(option.palette.color(group, QPalette::Text));
    drawCell(*painter, option.rect.adjusted(margin, 0, -margin, -half), index,
             model.isStornoed(row));

    QRect notes = wholeRow(option).adjusted(margin, half, -margin, 0);
    notes.setLeft(m_table.columnViewportPosition(ReceiptModel::ArticleName) + margin);
    notes = drawSample(*painter, notes, model, row, option.palette);
    drawPieces(*painter, notes, model.notesAt(row), option.palette);
    painter->restore();
}

} // namespace till
