#ifndef TILL_VIEW_RECEIPTVIEW_H
#define TILL_VIEW_RECEIPTVIEW_H

#include "till/language/Translator.h"
#include "till/receipt/Receipt.h"
#include "till/receipt/TaraState.h"
#include "till/view/TextPage.h"

namespace till {

/*!
 * Receipts, questions and messages as text for the cashier, in one language.
 *
 * Every line ends with a line break. Receipts fit the columns of the style, from 60 on: what is too
 * long is elided or goes on in the next line; only numbers are shown whole, even where enormous
 * ones make the table wider. Control characters in names and texts never reach the terminal.
 */
class ReceiptView
{
public:
    explicit ReceiptView(const Translator &translator, Style style = {});

    /*!
     * The whole receipt: a line about it, a table of its positions, the total. Below a position
     * stands what \a taras notes of it: how full a tara is and of what, where goods are and how
     * much of them found no room. The total is the one that the receipt computed last.
     */
    QString render(const Receipt &receipt, const TaraState &taras, TaraControl control) const;

    //! A question and below it the two choices.
    QString renderQuestion(const Question &question) const;

    //! A line in which the words of \a text stand behind \a margin columns, and go on so in as many
    //! more as they need; \a beginning stands before them, in a line of its own where it is longer.
    QString renderBehind(const QString &beginning, const QString &text, int margin) const;

    //! How many columns a line has.
    int columns() const { return m_style.columns(); }

    //! A message or a refusal.
    QString renderMessage(const tr::Tr &message) const;

private:
    Translator m_translator;
    Style m_style;
};

} // namespace till

#endif // TILL_VIEW_RECEIPTVIEW_H
