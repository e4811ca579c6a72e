#ifndef TESTS_TILL_GOODS_CATALOGUEFILE_H
#define TESTS_TILL_GOODS_CATALOGUEFILE_H

#include "tests/till/support/FolderTest.h"
#include "tests/till/support/Results.h"
#include "till/goods/Catalogue.h"

#include <ostream>

namespace till {

inline void PrintTo(const ArticleData &article, std::ostream *out)
{
    *out << article.code.toStdString() << " \"" << article.name.toStdString() << "\" "
         << article.price << " kopecks, tara mode " << article.taraMode << ", capacity "
         << article.taraCapacity << ", pack " << article.pack << " \"" << article.unit.toStdString()
         << '"';
}

} // namespace till

//! A catalogue file of its own for each test.
class CatalogueFile : public till::FolderTest
{
protected:
    //! The articles of a file with that text, or the error as the only element's name.
    QList<till::ArticleData> articlesOf(const QByteArray &text) const
    {
        const auto loaded = load(text);
        if (!loaded)
            return {{"refused", loaded.error().text(), 0, 0, 0.0, 0.0, ""}};
        QList<till::ArticleData> all;
        const auto articles = loaded->articles();
        for (const auto &article : articles)
            all.append(article->data);
        return all;
    }

    //! What is said of a file with that text, its name shortened to FILE; empty when it is taken.
    QString errorOf(const QByteArray &text) const
    {
        return till::faultText(load(text)).replace(file, "FILE");
    }

    till::Result<till::Catalogue> load(const QByteArray &text) const
    {
        overwrite(file, text);
        return till::Catalogue::load(file);
    }

    const QString file = path("goods.csv");
};

#endif // TESTS_TILL_GOODS_CATALOGUEFILE_H
