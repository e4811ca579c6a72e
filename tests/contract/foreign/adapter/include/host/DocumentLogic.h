#ifndef HOST_DOCUMENTLOGIC_H
#define HOST_DOCUMENTLOGIC_H

#include "host/Action.h"
#include "host/MockFactory.h"

using DocumentLogic = shopline::ReceiptActs;

#endif // HOST_DOCUMENTLOGIC_H
