#ifndef HOST_ACTIONQUEUECONTROLLER_H
#define HOST_ACTIONQUEUECONTROLLER_H

#include "host/Action.h"
#include "host/Singleton.h"

#include <shopline/Desk.h>

using ActionQueueController = shopline::TaskLine;

#endif // HOST_ACTIONQUEUECONTROLLER_H
