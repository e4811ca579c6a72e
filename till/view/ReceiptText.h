#ifndef TILL_VIEW_RECEIPTTEXT_H
#define TILL_VIEW_RECEIPTTEXT_H

#include "host/Tr.h"
#include "till/receipt/Receipt.h"
#include "till/receipt/TaraState.h"
#include "till/view/TextPage.h"

namespace till {

class Translator;

//! What receipts of that type are called.
tr::Tr nameOfType(int type);
//! How far a receipt in that state is.
tr::Tr nameOf(ReceiptState state);

/*!
 * What a receipt says to the cashier, in one language, for whoever draws it. Control characters in
 * names never reach it.
 */
struct ReceiptText
{
    //! A row of the table.
    struct Row
    {
        QString number;
        QString article;
        QString quantity;
        QString price;
        QString sum;
    };

    //! A position.
    struct Line
    {
        Row row;
        bool stornoed = false;
        QList<QList<Piece>> notes; //!< what is noted of its tara, or of the taras that it is in
    };

    QList<Piece> header; //!< which receipt it is, how far it is, whether tara is controlled
    Row captions;
    QList<Line> lines;
    QString noLines; //!< what stands in place of the lines when there are none
    QString totalCaption;
    QString total;

    //! What \a receipt says, of which \a taras notes how full a tara is and of what, where goods
    //! are and how much of them found no room. The total is the one that it computed last.
    static ReceiptText of(const Receipt &receipt, const TaraState &taras, TaraControl control,
                          const Translator &translator);
};

} // namespace till

#endif // TILL_VIEW_RECEIPTTEXT_H
