#include "fuzz/CatalogueRun.h"

#include "fuzz/MemoryFile.h"
#include "till/goods/Catalogue.h"

#include <QtCore/QStringList>

#include <algorithm>

namespace fuzz {

namespace {

using till::ArticleData;
using till::Catalogue;

QList<ArticleData> articlesOf(const Catalogue &catalogue)
{
    QList<ArticleData> articles;
    const auto all = catalogue.articles();
    for (const auto &article : all)
        articles.append(article->data);
    return articles;
}

QString faultOf(const ArticleData &article)
{
    if (article.code.isEmpty() || article.name.isEmpty())
        return "an article without code or name";
    if (std::any_of(article.code.cbegin(), article.code.cend(),
                    [](QChar c) { return c.isSpace(); }))
        return "a code with a space";
    if (article.price < 0 || !(article.pack > 0.0))
        return "a price below 0, or a pack of nothing";
    if ((article.taraMode == Tmc::Tara) != (article.taraCapacity > 0.0))
        return "a tara without capacity, or a capacity of something else";
    return {};
}

QString faultOf(const Catalogue &catalogue)
{
    const auto articles = catalogue.articles();
    if (articles.isEmpty())
        return "a catalogue of nothing";
    for (const auto &article : articles) {
        if (catalogue.find(article->data.code) != article)
            return "an article that its code does not find";
        if (const QString fault = faultOf(article->data); !fault.isEmpty())
            return fault;
    }
    return {};
}

QByteArray quoted(const QString &text)
{
    return '"' + QString(text).replace('"', "\"\"").toUtf8() + '"';
}

QByteArray toCsv(const QList<ArticleData> &articles)
{
    QByteArray csv = "code,name,price,tara mode,tara capacity,pack,unit\n";
    for (const ArticleData &article : articles) {
        const QStringList fields{article.code,
                                 article.name,
                                 till::toText(article.price),
                                 QString::number(article.taraMode),
                                 till::toText(article.taraCapacity),
                                 till::toText(article.pack),
                                 article.unit};
        QByteArrayList cells;
        for (const QString &field : fields)
            cells.append(quoted(field));
        csv += cells.join(',') + '\n';
    }
    return csv;
}

} // namespace

QString readCatalogue(QByteArrayView bytes)
{
    const MemoryFile file(bytes);
    if (!file.isWhole())
        return "the file could not be made";
    const auto loaded = Catalogue::load(file.path());
    if (!loaded)
        return loaded.error().place.startsWith(file.path())
                   ? QString()
                   : "a fault without its place: " + loaded.error().text();

    const auto &catalogue = *loaded;
    if (const QString fault = faultOf(catalogue); !fault.isEmpty())
        return fault;
    const MemoryFile copy(toCsv(articlesOf(catalogue)));
    const auto again = Catalogue::load(copy.path());
    if (!again)
        return "what was read is refused when it is written: " + again.error().text();
    return articlesOf(*again) == articlesOf(catalogue)
               ? QString()
               : "other articles are read from what was read and written";
}

} // namespace fuzz
