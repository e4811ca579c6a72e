#ifndef TILL_LOOKUP_LOOKUP_H
#define TILL_LOOKUP_LOOKUP_H

#include "till/options/Options.h"

namespace till {

/*!
 * `till receipts`, `till receipt NUMBER` and `till journal NUMBER`: prints what the database has of
 * receipts, of which nothing is changed. What does not hold is told on standard error; the status
 * is that of the program.
 */
int lookUp(const Options &options, const Translator &translator);

} // namespace till

#endif // TILL_LOOKUP_LOOKUP_H
