#ifndef HOST_CONFIG_H
#define HOST_CONFIG_H

#include "host/Singleton.h" // each service brings the way to it

#include <vendor/Config.h>

using Config = vendor::Config;

#endif // HOST_CONFIG_H
