#ifndef TILL_REPORTS_RECEIPTROWS_H
#define TILL_REPORTS_RECEIPTROWS_H

#include "till/archive/Archive.h"
#include "till/language/Translator.h"
#include "till/view/TextPage.h"

#include <QtCore/QStringList>

namespace till {

//! A list of receipts for people, a line each, in one language; it fits the columns of the style,
//! from 60 on. Every line ends with a line break.
class ReceiptRows
{
public:
    explicit ReceiptRows(const Translator &translator, Style style = {});

    //! What stands above the columns.
    QString captions() const;
    QString row(const KeptReceipt &receipt) const;
    //! What stands in place of rows when there are none.
    QString none() const;

private:
    QString line(const QString &number, const QString &opened, const QString &total,
                 const QString &words) const;

    Translator m_translator;
    Style m_style;
};

//! What \a receipt is, in one line; of one that does not hold what is wrong with it.
QString wordsOf(const KeptReceipt &receipt, const Translator &translator);

//! The first row of a table of receipts as CSV: names of its columns.
QString csvCaptions();
//! \a receipt as one of its rows: local times, money in roubles; of one that does not hold, its
//! number and what is wrong with it.
QString csvRow(const KeptReceipt &receipt);

} // namespace till

#endif // TILL_REPORTS_RECEIPTROWS_H
