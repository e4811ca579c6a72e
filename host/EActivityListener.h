#ifndef HOST_EACTIVITYLISTENER_H
#define HOST_EACTIVITYLISTENER_H

//! What can happen to a receipt, as activity events name it.
namespace EActivityListener {

/*!
 * Code of an activity event. The type is an `int`: a host may publish codes that are not named
 * here, and a listener ignores those that it does not know.
 */
enum Event : int {
    eventNone = 0,             //!< no event; the code of a default-made `::Event`
    eventPositionAdded = 19,   //!< a position was added; argument "position"
    eventPositionStorno = 21,  //!< a position was stornoed; argument "position"
    eventModifierApplied = 26, //!< modifiers were applied by the cashier; argument "position"
    eventError = 29, //!< a message to show; arguments "errorText" (tr::Tr) and "forCustomer" (bool)
    eventModifierApplied2 =
        252, //!< modifiers were applied through the action queue; argument "position"
};

} // namespace EActivityListener

#endif // HOST_EACTIVITYLISTENER_H
