#ifndef HOST_EACTIONTYPE_H
#define HOST_EACTIONTYPE_H

namespace control {

/*!
 * What a cashier, or the program on the cashier's behalf, does.
 *
 * Numbers below 10000 are the contract's. Those from 10000 up are this host's own, for the actions
 * of a register to which no plugin attaches.
 */
enum EActionType : int {
    ApplyModifiers = 5,   //!< apply the session's modifiers (the quantity) to a position
    AddSoftCheck = 129,   //!< a soft-check or an order is added to the receipt
    StornoPosition = 132, //!< storno of a position
    Subtotal = 133,       //!< go to subtotal
    Payment = 144,        //!< pay at once; gated like the subtotal
    RemovePosition = 202, //!< removal of a position
    SplitPositions = 233, //!< split positions; argument "splitPositionsData"
    UnitePositions = 234, //!< unite positions; arguments "deletedPositions", "changedPositions"

    OpenReceipt = 10000,   //!< open a receipt
    AddPosition = 10001,   //!< add an article as a new position
    CloseReceipt = 10002,  //!< the receipt is paid and closed
    CancelReceipt = 10003, //!< the whole receipt is cancelled
};

} // namespace control

#endif // HOST_EACTIONTYPE_H
