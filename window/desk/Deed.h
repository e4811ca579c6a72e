#ifndef WINDOW_DESK_DEED_H
#define WINDOW_DESK_DEED_H

#include "till/language/Message.h"
#include "till/register/Register.h"

#include <QtCore/QList>
#include <QtGui/QKeySequence>

namespace till {

//! What a cashier does beside adding goods, each with a button and a key.
enum class Deed {
    OpenSale,
    OpenReturn,
    Cancel,
    Quantity,
    Storno,
    Split,
    Unite,
    Order,
    SoftCheck,
    Subtotal,
    Pay
};

//! A row of the table of deeds.
struct DeedRow
{
    Deed deed;
    const char *name; //!< of its button, for tests and for accessibility tools
    Message text;
    QKeySequence key;
};

//! Every deed, in the order of their buttons.
const QList<DeedRow> &deedRows();

/*!
 * Why \a deed cannot be done now to the \a selected positions of the receipt of \a cashRegister:
 * what the register would say by itself, or that nothing fit is selected. Done when it can.
 */
Outcome whyNot(Deed deed, const Register &cashRegister, const QList<int> &selected);

} // namespace till

#endif // WINDOW_DESK_DEED_H
