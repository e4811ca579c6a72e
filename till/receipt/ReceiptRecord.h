#ifndef TILL_RECEIPT_RECEIPTRECORD_H
#define TILL_RECEIPT_RECEIPTRECORD_H

#include "host/Document.h"
#include "till/goods/Article.h"
#include "till/receipt/ValueChange.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

namespace till {

//! How far a receipt has come.
enum class ReceiptState : int {
    Open = 0,
    Subtotal = 1, //!< at subtotal: nothing is sold any more, payment is awaited
    Closed = 2,   //!< paid
    Cancelled = 3,
};

//! How far a receipt in that state is, as scripts and files say it.
QString wordOf(ReceiptState state);

//! Whether a register goes on with a receipt that is so far.
inline bool isUnfinished(ReceiptState state)
{
    return state == ReceiptState::Open || state == ReceiptState::Subtotal;
}

//! A position as it is stored. Stornoed positions stay in the receipt as struck lines.
struct LineRecord
{
    int posnum = 0;
    ArticleData article; //!< as it was when the position was added
    double count = 0.0;  //!< pieces
    double base = 0.0;   //!< base units
    QString groupId;
    bool stornoed = false;

    //! Price of the whole line.
    Kopecks sum() const { return sumOf(article.price, count); }
    bool operator==(const LineRecord &other) const = default;
};

//! What is stored of a receipt beside its positions and what plugins keep in it.
struct ReceiptHeader
{
    qint64 id = 0; //!< number of the receipt in the database; 0 until it was stored
    int type = Document::Sale;
    ReceiptState state = ReceiptState::Open;
    QString order;          //!< number of the attached order, empty when there is none
    QStringList softChecks; //!< numbers of the added soft-checks
    int nextPosnum = 1;     //!< numbers below are never used again in this receipt

    bool operator==(const ReceiptHeader &other) const = default;
};

//! A receipt as it is stored: everything that a register needs to go on with it.
struct ReceiptRecord : ReceiptHeader
{
    QList<LineRecord> lines; //!< in the order of adding
    Document::PluginData pluginData;

    bool operator==(const ReceiptRecord &other) const = default;
};

//! What became of a receipt since it was stored last. Nothing of it is ever taken out again but
//! elements of a plugin's lists.
struct ReceiptUpdate : ReceiptHeader
{
    bool isWhole = false;              //!< all of it, in place of whatever is stored
    QMap<qsizetype, LineRecord> lines; //!< those that changed, by their place
    QList<ValueChange> values;         //!< in the order in which they happened
};

//! All of \a record.
ReceiptUpdate wholeOf(const ReceiptRecord &record);

} // namespace till

#endif // TILL_RECEIPT_RECEIPTRECORD_H
