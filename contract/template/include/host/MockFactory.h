#ifndef HOST_MOCKFACTORY_H
#define HOST_MOCKFACTORY_H

#include <vendor/Factory.h>

// Makes a Dialog or a DocumentLogic for one use, or hands out the host program's own. create()
// gives a QSharedPointer.
template <class T>
using MockFactory = vendor::Factory<T>;

#endif // HOST_MOCKFACTORY_H
