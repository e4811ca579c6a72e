#ifndef HOST_LOYALTYSYSTEMLAYER_H
#define HOST_LOYALTYSYSTEMLAYER_H

#include "host/AbstractDocument.h"
#include "host/Singleton.h" // each service brings the way to it

#include <vendor/LoyaltySystemLayer.h>

using LoyaltySystemLayer = vendor::LoyaltySystemLayer;

#endif // HOST_LOYALTYSYSTEMLAYER_H
