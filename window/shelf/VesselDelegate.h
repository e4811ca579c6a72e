#ifndef WINDOW_SHELF_VESSELDELEGATE_H
#define WINDOW_SHELF_VESSELDELEGATE_H

#include <QtWidgets/QStyledItemDelegate>

namespace till {

//! Draws the taras of a `VesselModel` as vessels: the greater the capacity, the greater the vessel.
class VesselDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    //! The least room of a vessel in \a font, with its texts.
    static QSize leastRoom(const QFont &font);
    //! The same where a screen has not even that: the vessel is shorter, its texts are whole.
    static QSize shortestRoom(const QFont &font);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

} // namespace till

#endif // WINDOW_SHELF_VESSELDELEGATE_H
