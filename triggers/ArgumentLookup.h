#ifndef TRIGGERS_ARGUMENTLOOKUP_H
#define TRIGGERS_ARGUMENTLOOKUP_H

#include "host/Action.h"
#include "host/GoodsItem.h"

namespace packaging {

/*!
 * The argument \a key of \a action, or else the one under the key in lower case, which some callers
 * write; an invalid variant when there is neither.
 */
QVariant argument(const control::Action &action, const QString &key);

//! The argument \a key as a list of positions; empty when it is missing or does not convert.
GoodsItemPtrList positionsArgument(const control::Action &action, const QString &key);

} // namespace packaging

#endif // TRIGGERS_ARGUMENTLOOKUP_H
