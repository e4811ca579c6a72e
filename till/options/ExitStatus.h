#ifndef TILL_OPTIONS_EXITSTATUS_H
#define TILL_OPTIONS_EXITSTATUS_H

#include "till/result/Result.h"

namespace till {

//! Exit statuses, as docs/till.md lists them. A play that a signal ends has 128 and its number.
enum ExitStatus : int {
    AllWell = 0,
    CommandFailed = 1, //!< a command or an expectation did not end well, or damage was found
    UsageError = 2,    //!< the program's own arguments are wrong
    StartFailed = 3,   //!< the catalogue, the database, the plugin or another file cannot be used
};

//! A fault, and how the program ends for it.
struct Failure
{
    ExitStatus status;
    Fault fault;
};

} // namespace till

#endif // TILL_OPTIONS_EXITSTATUS_H
