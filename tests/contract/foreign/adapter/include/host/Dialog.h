#ifndef HOST_DIALOG_H
#define HOST_DIALOG_H

#include "host/MockFactory.h"
#include "host/Tr.h"

using Dialog = shopline::Ask;

#endif // HOST_DIALOG_H
