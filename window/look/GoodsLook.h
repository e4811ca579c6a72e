#ifndef WINDOW_LOOK_GOODSLOOK_H
#define WINDOW_LOOK_GOODSLOOK_H

#include <QtGui/QBrush>
#include <QtGui/QColor>

class QPainter;
class QRectF;

namespace till {

/*!
 * What the goods of a position look like wherever they are drawn: a colour that is told from the
 * others with any colour vision, and a pattern, so that neither is needed to know them apart.
 */
struct GoodsLook
{
    QColor colour;
    Qt::BrushStyle pattern = Qt::NoBrush; //!< drawn over the colour

    //! Of the goods position that is the \a ordinal one of its receipt, from 0. The first 42
    //! differ.
    static GoodsLook of(int ordinal);

    //! A colour that is read on `colour`: black or white.
    QColor ink() const;
    //! Fills \a area.
    void fill(QPainter &painter, const QRectF &area) const;

    bool operator==(const GoodsLook &other) const = default;
};

} // namespace till

#endif // WINDOW_LOOK_GOODSLOOK_H
