#ifndef WINDOW_LOOK_SHOWNRECEIPT_H
#define WINDOW_LOOK_SHOWNRECEIPT_H

#include "till/receipt/Receipt.h"
#include "till/receipt/TaraState.h"

#include <QtCore/QHash>

#include <memory>
#include <optional>

namespace till {

class Register;

/*!
 * A receipt as it stood at one moment, for widgets to draw from: also in the middle of a command,
 * when a question runs an event loop, they show what was stored last.
 */
class ShownReceipt
{
public:
    //! The receipt that \a record is. \a pluginId is what the plugin called itself that noted the
    //! tara in it; \a control how far it does.
    ShownReceipt(const ReceiptRecord &record, const QString &pluginId, TaraControl control);
    //! The same of which the tara is known already.
    ShownReceipt(const ReceiptRecord &record, TaraState taras, TaraControl control);
    //! The current receipt of \a cashRegister, or null when there was none.
    static std::shared_ptr<const ShownReceipt> of(const Register &cashRegister);
    Q_DISABLE_COPY_MOVE(ShownReceipt)

    const Receipt &receipt() const { return m_receipt; }
    const TaraState &taras() const { return m_taras; }
    const TaraIndex &index() const { return m_index; }
    TaraControl control() const { return m_control; }

    //! Which of the goods positions the one with that number is, from 0, in the order of adding;
    //! nothing when it is none. Stornoed ones count too, so that a position keeps its own.
    std::optional<int> goodsOrdinal(int posnum) const;

private:
    const Receipt m_receipt;
    const TaraState m_taras;
    const TaraIndex m_index;
    const TaraControl m_control;
    QHash<int, int> m_ordinals;
};

} // namespace till

#endif // WINDOW_LOOK_SHOWNRECEIPT_H
