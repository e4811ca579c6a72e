#ifndef HOST_ACTIVITYNOTIFIER_H
#define HOST_ACTIVITYNOTIFIER_H

#include "host/Singleton.h"

#include <shopline/Activity.h>

using ActivityNotifier = shopline::ActivityBoard;

#endif // HOST_ACTIVITYNOTIFIER_H
