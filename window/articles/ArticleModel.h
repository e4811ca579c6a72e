#ifndef WINDOW_ARTICLES_ARTICLEMODEL_H
#define WINDOW_ARTICLES_ARTICLEMODEL_H

#include "till/goods/Catalogue.h"
#include "till/language/Translator.h"

#include <QtCore/QAbstractListModel>

namespace till {

//! The articles of a catalogue that belong to a group and contain a text, in the catalogue's order.
class ArticleModel final : public QAbstractListModel
{
public:
    enum class Group { All, Tara, IntoTara, Other };

    //! Shows the articles of \a catalogue, which must outlive its being shown.
    void show(const Catalogue &catalogue);
    //! Leaves those of \a group that contain \a text in code or name, as a search of the catalogue.
    void filter(Group group, const QString &text);

    //! Whether there is a catalogue.
    bool isShowing() const { return m_catalogue; }
    //! Whether articles of other groups contain the text.
    bool hasInOtherGroups() const { return m_hasInOtherGroups; }

    const ArticleData &articleAt(int row) const { return m_articles[row]->data; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    void fill();

    const Catalogue *m_catalogue = nullptr;
    Group m_group = Group::All;
    QString m_text;
    QList<QSharedPointer<Article>> m_articles;
    bool m_hasInOtherGroups = false;
};

} // namespace till

#endif // WINDOW_ARTICLES_ARTICLEMODEL_H
