#ifndef HOST_ACTIVITYNOTIFIER_H
#define HOST_ACTIVITYNOTIFIER_H

#include "host/BaseActivityListener.h"
#include "host/Singleton.h" // each service brings the way to it

#include <vendor/ActivityNotifier.h>

using ActivityNotifier = vendor::ActivityNotifier;

#endif // HOST_ACTIVITYNOTIFIER_H
