#ifndef WINDOW_ARTICLES_ARTICLEDELEGATE_H
#define WINDOW_ARTICLES_ARTICLEDELEGATE_H

#include <QtWidgets/QStyledItemDelegate>

namespace till {

//! Draws the articles of an `ArticleModel` as tiles: the name in two lines, below it code and
//! price.
class ArticleDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    //! Of every tile in \a font, with the gap to the next one; at least what a finger touches.
    static QSize tileSize(const QFont &font);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

} // namespace till

#endif // WINDOW_ARTICLES_ARTICLEDELEGATE_H
