#ifndef WINDOW_LOOK_PAINTS_H
#define WINDOW_LOOK_PAINTS_H

#include "till/view/TextPage.h"

#include <QtGui/QColor>
#include <QtGui/QFont>

class QPainter;
class QPalette;
class QRect;

namespace till {

//! The least height, in pixels, of what a finger touches.
constexpr int touchHeight = 44;

//! What \a paint looks like on the base of \a palette, light or dark.
QColor colourOf(Paint paint, const QPalette &palette);

//! The same for a warning: as text, and as what lies below a text.
QColor warningColour(const QPalette &palette);

//! \a font as \a paint dresses it.
QFont fontOf(const QFont &font, Paint paint);

//! Writes \a pieces with spaces between them in one line of \a area, in the middle of its height,
//! elided at its end. Where there is no room for all, those that warn come first.
void drawPieces(QPainter &painter, const QRect &area, const QList<Piece> &pieces,
                const QPalette &palette);

//! The texts of \a pieces with spaces between them.
QString plainText(const QList<Piece> &pieces);

} // namespace till

#endif // WINDOW_LOOK_PAINTS_H
