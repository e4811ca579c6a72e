#ifndef HOST_CONFIG_H
#define HOST_CONFIG_H

#include "host/Singleton.h"

#include <shopline/Desk.h>

using Config = shopline::Settings;

#endif // HOST_CONFIG_H
