#ifndef REGISTRY_GIVEBACK_H
#define REGISTRY_GIVEBACK_H

#include "plugin/PackagingControl.h"

namespace packaging {

//! Gives what the goods of \a info use back to the tara that is in \a taras. Changes no list and
//! takes no memory; \a info is to be let go of afterwards.
void giveBack(const PackagingControl::PackagingInfo &info,
              const QList<QSharedPointer<PackagingControl::TaraInfo>> &taras);

} // namespace packaging

#endif // REGISTRY_GIVEBACK_H
