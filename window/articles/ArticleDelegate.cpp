#include "window/articles/ArticleDelegate.h"

#include "till/view/DisplayText.h"
#include "window/articles/ArticleModel.h"
#include "window/look/Paints.h"

#include <QtGui/QPainter>
#include <QtGui/QTextLayout>
#include <QtWidgets/QApplication>

#include <algorithm>

namespace till {

namespace {

constexpr int tilePadding = 5;
constexpr int gap = 4;
constexpr int nameLines = 2;

//! Writes \a text in at most two lines of \a area, the last one elided.
void drawName(QPainter &painter, const QRect &area, const QString &text)
{
    const QFontMetrics metrics = painter.fontMetrics();
    QTextLayout layout(text, painter.font());
    layout.beginLayout();
    for (int number = 0; number < nameLines; ++number) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(area.width());
        const bool isLast = number + 1 == nameLines;
        const QString words =
            isLast ? metrics.elidedText(text.mid(line.textStart()), Qt::ElideRight, area.width())
                   : text.mid(line.textStart(), line.textLength()).trimmed();
        painter.drawText(area.left(), area.top() + number * metrics.height() + metrics.ascent(),
                         words);
    }
    layout.endLayout();
}

} // namespace

QSize ArticleDelegate::tileSize(const QFont &font)
{
    const QFontMetrics metrics(font);
    const int height = (nameLines + 1) * metrics.height() + 2 * tilePadding + gap;
    return {metrics.averageCharWidth() * 19, std::max(height, touchHeight + gap)};
}

QSize ArticleDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    return tileSize(option.font);
}

void ArticleDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    const ArticleData &article =
        static_cast<const ArticleModel &>(*index.model()).articleAt(index.row());
    const QRect tile = option.rect.adjusted(0, 0, -gap, -gap);
    const bool hasFocus = option.state.testFlag(QStyle::State_HasFocus);
    const bool isUnderMouse = option.state.testFlag(QStyle::State_MouseOver);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(hasFocus ? QPen(option.palette.color(QPalette::Highlight), 2)
                             : QPen(option.palette.color(QPalette::Mid)));
    painter->setBrush(option.palette.color(isUnderMouse ? QPalette::Midlight : QPalette::Button));
    painter->drawRoundedRect(tile.adjusted(1, 1, -1, -1), 4, 4);
    painter->setPen(option.palette.color(QPalette::ButtonText));
    painter->setFont(option.font);
    const QRect inside = tile.adjusted(tilePadding, tilePadding, -tilePadding, -tilePadding);
    drawName(*painter, inside, printable(article.name));
    const QString price = toText(article.price);
    QFont bold = option.font;
    bold.setBold(true);
    const int priceWidth = QFontMetrics(bold).horizontalAdvance(price) + tilePadding;
    painter->drawText(inside, Qt::AlignLeft | Qt::AlignBottom | Qt::TextSingleLine,
                      painter->fontMetrics().elidedText(printable(article.code), Qt::ElideRight,
                                                        std::max(inside.width() - priceWidth, 0)));
    painter->setFont(bold);
    painter->drawText(inside, Qt::AlignRight | Qt::AlignBottom | Qt::TextSingleLine, price);
    painter->restore();
}

} // namespace till
