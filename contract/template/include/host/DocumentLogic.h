#ifndef HOST_DOCUMENTLOGIC_H
#define HOST_DOCUMENTLOGIC_H

#include "host/Action.h"
#include "host/MockFactory.h"

#include <vendor/DocumentLogic.h>

using DocumentLogic = vendor::DocumentLogic;

#endif // HOST_DOCUMENTLOGIC_H
