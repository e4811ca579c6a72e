#ifndef TILL_GOODS_CATALOGUE_H
#define TILL_GOODS_CATALOGUE_H

#include "till/goods/Article.h"
#include "till/result/Result.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>

namespace till {

//! The articles that the shop sells, each under its own code.
class Catalogue
{
public:
    /*!
     * Reads the CSV file at \a path. One bad row is enough to take nothing of the file; the text of
     * the fault is `FILE:LINE: column N "name": reason` for the first one, with less in front of
     * the reason where there is no such line or column.
     *
     * The file is UTF-8, with or without a byte order mark, its fields separated by comma,
     * semicolon or tab; which one, the header tells. Blank rows and white space around fields mean
     * nothing. The header names these columns, in any order and among others, which are ignored:
     *
     * | column | also | what |
     * |---|---|---|
     * | code | код | not empty, without spaces, in one row only |
     * | name | наименование, название | not empty; runs of spaces become a space |
     * | price | цена | roubles of one piece, up to `greatestAmount`, "12.5" or "12,50" |
     * | tara mode | режим тары | 0 ordinary goods, 1 tara, 2 goods sold into tara; empty is 0 |
     * | tara capacity | ёмкость тары | base units in one tara, above 0; 0 or empty for all else |
     * | pack | упаковка | base units in one piece, above 0; empty is 1 |
     * | unit | единица | name of the base unit; may be empty |
     *
     * A control character, line breaks and tabs among them, is refused within a code, a name and a
     * unit. Letter case in these names, "_" for a space and "е" for "ё" make no difference.
     */
    static Result<Catalogue> load(const QString &path);

    //! The article with exactly that code, or null.
    QSharedPointer<Article> find(const QString &code) const { return m_byCode.value(code); }

    //! Every article, in the order of the file.
    QList<QSharedPointer<Article>> articles() const { return m_articles; }

    //! Those whose code or name contains \a text in any letter case and with "ё" or "е", in the
    //! order of the file.
    QList<QSharedPointer<Article>> containing(const QString &text) const;

private:
    //! Takes the articles of the CSV in \a text; throws a `CatalogueRefusal`.
    void read(const QByteArray &text);
    //! False when there is one with its code.
    bool add(const ArticleData &data);
    //! Where the article with that code stands among all.
    qsizetype placeOf(const QString &code) const;

    QList<QSharedPointer<Article>> m_articles;
    QHash<QString, QSharedPointer<Article>> m_byCode;
};

} // namespace till

#endif // TILL_GOODS_CATALOGUE_H
