#ifndef TILL_LOOKUP_INFO_H
#define TILL_LOOKUP_INFO_H

#include "till/register/CashDesk.h"

namespace till {

/*!
 * Loads the plugin of \a setup, initialises it and tells what it is: its metadata, its triggers and
 * the events to which it subscribes.
 */
Result<QString> describePlugin(const Setup &setup);

} // namespace till

#endif // TILL_LOOKUP_INFO_H
