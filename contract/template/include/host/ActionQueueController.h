#ifndef HOST_ACTIONQUEUECONTROLLER_H
#define HOST_ACTIONQUEUECONTROLLER_H

#include "host/Action.h"
#include "host/Singleton.h" // each service brings the way to it

#include <vendor/ActionQueueController.h>

using ActionQueueController = vendor::ActionQueueController;

#endif // HOST_ACTIONQUEUECONTROLLER_H
