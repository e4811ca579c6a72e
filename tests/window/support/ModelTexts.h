#ifndef TESTS_WINDOW_SUPPORT_MODELTEXTS_H
#define TESTS_WINDOW_SUPPORT_MODELTEXTS_H

#include <QtCore/QAbstractItemModel>
#include <QtCore/QStringList>

namespace till {

//! What the cells of a column say, below \a parent.
inline QStringList textsOf(const QAbstractItemModel &model, const QModelIndex &parent = {},
                           int column = 0)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(parent); ++row)
        texts.append(model.index(row, column, parent).data().toString());
    return texts;
}

//! The last row of which the first cell contains \a text, wherever in the tree; none when there is
//! no such row.
inline QModelIndex rowWith(const QAbstractItemModel &model, const QString &text,
                           const QModelIndex &parent = {})
{
    for (int row = model.rowCount(parent) - 1; row >= 0; --row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (const QModelIndex inside = rowWith(model, text, index); inside.isValid())
            return inside;
        if (index.data().toString().contains(text))
            return index;
    }
    return {};
}

} // namespace till

#endif // TESTS_WINDOW_SUPPORT_MODELTEXTS_H
