#ifndef TILL_RECEIPT_POSITION_H
#define TILL_RECEIPT_POSITION_H

#include "host/GoodsItem.h"
#include "till/receipt/ReceiptRecord.h"

#include <QtCore/QSharedPointer>

namespace till {

//! A line of the receipt.
class Position : public GoodsItem
{
public:
    Position(int posnum, const QSharedPointer<Article> &article);

    const ArticleData &article() const { return m_article->data; }

    //! Sets the count of pieces; the base quantity follows by the article's pack.
    void setCount(double count);
    //! Sets both, of which neither can be had from the other without rounding.
    void setQuantity(double count, double base);

    //! Price of the whole line.
    Kopecks sum() const;

    bool isStornoed() const { return m_stornoed; }
    void setStornoed() { m_stornoed = true; }

    LineRecord record() const;

private:
    QSharedPointer<Article> m_article;
    bool m_stornoed = false;
};

} // namespace till

#endif // TILL_RECEIPT_POSITION_H
