#ifndef TILL_GOODS_ARTICLE_H
#define TILL_GOODS_ARTICLE_H

#include "host/Tmc.h"
#include "till/goods/Money.h"

#include <QtCore/QString>

namespace till {

//! What the catalogue says of an article.
struct ArticleData
{
    QString code; //!< what the cashier types; unique in the catalogue
    QString name;
    Kopecks price = 0;          //!< of one piece
    int taraMode = Tmc::NoTara; //!< a `Tmc::TaraMode`
    double taraCapacity = 0.0;  //!< of one piece, in base units; 0 for what is no tara
    double pack = 1.0;          //!< base units in one piece, above 0
    QString unit;               //!< name of the base unit

    bool operator==(const ArticleData &other) const = default;
};

//! An article of the catalogue, as positions refer to it.
class Article : public Tmc
{
public:
    explicit Article(const ArticleData &fields)
        : Tmc(fields.taraMode, fields.taraCapacity)
        , data(fields)
    {
    }

    const ArticleData data;
};

} // namespace till

#endif // TILL_GOODS_ARTICLE_H
