#ifndef TILL_VIEW_RECEIPTTEXT_H
#define TILL_VIEW_RECEIPTTEXT_H

#include "host/Tr.h"
#include "till/receipt/Receipt.h"
#include "till/receipt/TaraState.h"
#include "till/view/TaraText.h"
#include "till/view/TextPage.h"

namespace till {

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

    //! What stands above the columns.
    static Row captionsIn(const Translator &translator);
};

//! Puts a receipt into words, piece by piece, for whoever shows a part of it. What it is made from
//! must live as long.
class ReceiptWording
{
public:
    ReceiptWording(const Translator &translator, const Receipt &receipt, const TaraIndex &index)
        : m_translator(translator)
        , m_receipt(receipt)
        , m_index(index)
        , m_taraText(translator, receipt, index)
    {
    }

    //! "Чек № 12"; without the number as long as there is none.
    QString title() const;
    //! The title, how far the receipt is, what was added to it, whether tara is not controlled.
    QList<Piece> header(TaraControl control) const;
    //! The row of the table for \a position of the receipt.
    ReceiptText::Row row(const Position &position) const;
    //! What is noted of it: as of a tara, and as of goods.
    QList<QList<Piece>> notes(const Position &position) const;

private:
    QString say(const tr::Tr &message) const { return m_translator.text(message); }
    QString quantityOf(const Position &position) const;

    const Translator &m_translator;
    const Receipt &m_receipt;
    const TaraIndex &m_index;
    const TaraText m_taraText;
};

} // namespace till

#endif // TILL_VIEW_RECEIPTTEXT_H
