#ifndef HOST_LOYALTYSYSTEMLAYER_H
#define HOST_LOYALTYSYSTEMLAYER_H

#include "host/AbstractDocument.h"
#include "host/Singleton.h"

#include <shopline/Desk.h>

using LoyaltySystemLayer = shopline::Bonus;

#endif // HOST_LOYALTYSYSTEMLAYER_H
