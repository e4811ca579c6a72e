#ifndef HOST_ACTION_H
#define HOST_ACTION_H

#include "host/EActionType.h"
#include "host/GoodsItem.h" // its arguments hold positions

namespace control {

// A handle: copies share their arguments. With other keys, derive as in Event.h: a constructor from
// (EActionType, const QMultiMap<QString, QVariant> &), one from const vendor::Action &, and a
// getArguments() that renames; "splitPositionsData" is a list of maps with keys of their own.
using Action = vendor::Action;

} // namespace control

#endif // HOST_ACTION_H
