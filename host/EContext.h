#ifndef HOST_ECONTEXT_H
#define HOST_ECONTEXT_H

//! Where an action runs, and how a trigger callback answers.
namespace EContext {

//! Part of the host program in which an action is performed.
enum Code : int {
    Receipt = 6, //!< there is a current receipt
};

//! Answer of a trigger callback. The action queue answers with the same numbers.
enum Result : int {
    Cancel = 0,   //!< the action does not run; nothing is reported
    Error = 1,    //!< the action is refused; an error event told why
    Continue = 2, //!< the action goes on; from the action queue: it was carried out
};

} // namespace EContext

#endif // HOST_ECONTEXT_H
