#ifndef HOST_MOCKFACTORY_H
#define HOST_MOCKFACTORY_H

#include <shopline/Talk.h>

template <class T>
using MockFactory = shopline::Factory<T>;

#endif // HOST_MOCKFACTORY_H
