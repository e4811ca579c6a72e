#include "window/look/Paints.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QPainter>
#include <QtGui/QPalette>

#include <algorithm>

namespace till {

namespace {

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Base).lightness() < 128;
}

int widthOf(const QList<Piece> &pieces, const QFont &font)
{
    int width = 0;
    for (const Piece &piece : pieces)
        width += QFontMetrics(fontOf(font, piece.paint)).horizontalAdvance(piece.text + u' ');
    return width;
}

} // namespace

QFont fontOf(const QFont &font, Paint paint)
{
    QFont dressed = font;
    dressed.setBold(paint == Paint::Bold || paint == Paint::Red);
    dressed.setStrikeOut(paint == Paint::Struck);
    return dressed;
}

QColor warningColour(const QPalette &palette)
{
    return isDark(palette) ? QColor(0xff, 0x9d, 0x8a) : QColor(0xb0, 0x00, 0x20);
}

QColor colourOf(Paint paint, const QPalette &palette)
{
    const bool dark = isDark(palette);
    switch (paint) {
    case Paint::Red:
        return warningColour(palette);
    case Paint::Green:
        return dark ? QColor(0x7f, 0xd6, 0x9b) : QColor(0x00, 0x60, 0x40);
    case Paint::Yellow:
        return dark ? QColor(0xf0, 0xd0, 0x60) : QColor(0x6f, 0x4e, 0x00);
    case Paint::Cyan:
        return dark ? QColor(0x7c, 0xc8, 0xe8) : QColor(0x00, 0x54, 0x70);
    case Paint::Plain:
    case Paint::Bold:
    case Paint::Dim:
    case Paint::Struck:
        break;
    }
    return palette.color(QPalette::Text);
}

void drawPieces(QPainter &painter, const QRect &area, const QList<Piece> &pieces,
                const QPalette &palette)
{
    const QFont font = painter.font();
    QList<Piece> ordered = pieces;
    if (widthOf(pieces, font) > area.width())
        std::stable_partition(ordered.begin(), ordered.end(),
                              [](const Piece &piece) { return piece.paint == Paint::Red; });
    QRect left = area;
    for (const Piece &piece : std::as_const(ordered)) {
        if (left.width() <= 0)
            break;
        painter.setFont(fontOf(font, piece.paint));
        painter.setPen(colourOf(piece.paint, palette));
        const QFontMetrics metrics = painter.fontMetrics();
        painter.drawText(left, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         metrics.elidedText(piece.text, Qt::ElideRight, left.width()));
        left.setLeft(left.left() + metrics.horizontalAdvance(piece.text + u' '));
    }
    painter.setFont(font);
}

QString plainText(const QList<Piece> &pieces)
{
    QStringList texts;
    for (const Piece &piece : pieces)
        texts.append(piece.text);
    return texts.join(u' ');
}

} // namespace till
