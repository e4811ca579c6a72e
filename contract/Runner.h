#ifndef CONTRACT_RUNNER_H
#define CONTRACT_RUNNER_H

#include "contract/Check.h"

namespace contract {

/*!
 * Runs \a check in a child process and waits for it. A child that crashes, or hangs for five
 * minutes, is a broken promise. What the host prints is dropped unless \a showsOutput.
 */
Finding runApart(const Check &check, bool showsOutput);

} // namespace contract

#endif // CONTRACT_RUNNER_H
