#ifndef HOST_SESSION_H
#define HOST_SESSION_H

#include "host/ModifiersContainer.h" // what getModifiers() gives
#include "host/Singleton.h"

#include <vendor/Session.h>

using Session = vendor::Session;

#endif // HOST_SESSION_H
