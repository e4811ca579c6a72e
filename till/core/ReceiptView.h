#ifndef TILL_CORE_RECEIPTVIEW_H
#define TILL_CORE_RECEIPTVIEW_H

#include "till/core/Receipt.h"
#include "till/core/TaraState.h"
#include "till/core/TextPage.h"
#include "till/core/Translator.h"

namespace till {

//! Whether a plugin controls the tara of the receipt.
enum class TaraControl {
    Active,
    Suspended, //!< the plugin let go of the receipt
    Absent,    //!< there is no plugin
};

/*!
 * Receipts, questions and messages as text for the cashier, in one language.
 *
 * Every line ends with a line break. Receipts fit 80 columns: what is too long is elided or goes on
 * in the next line; only numbers are shown whole, even where enormous ones make the table wider.
 * Control characters in names and texts never reach the terminal.
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
    QString renderQuestion(const tr::Tr &question, const tr::Tr &confirm,
                           const tr::Tr &cancel) const;

    //! A message or a refusal.
    QString renderMessage(const tr::Tr &message) const;

private:
    Translator m_translator;
    Style m_style;
};

} // namespace till

#endif // TILL_CORE_RECEIPTVIEW_H
