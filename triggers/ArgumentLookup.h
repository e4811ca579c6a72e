#ifndef TRIGGERS_ARGUMENTLOOKUP_H
#define TRIGGERS_ARGUMENTLOOKUP_H

#include "host/Action.h"

namespace packaging {

/*!
 * The argument \a key of \a action, or else the one under the key in lower case, which some callers
 * write; an invalid variant when there is neither.
 */
inline QVariant argument(const control::Action &action, const QString &key)
{
    const QMultiMap<QString, QVariant> arguments = action.getArguments();
    return arguments.value(key, arguments.value(key.toLower()));
}

} // namespace packaging

#endif // TRIGGERS_ARGUMENTLOOKUP_H
