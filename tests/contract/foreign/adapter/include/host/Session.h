#ifndef HOST_SESSION_H
#define HOST_SESSION_H

#include "host/ModifiersContainer.h"
#include "host/Singleton.h"

using Session = shopline::Desk;

#endif // HOST_SESSION_H
