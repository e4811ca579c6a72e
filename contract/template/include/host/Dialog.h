#ifndef HOST_DIALOG_H
#define HOST_DIALOG_H

#include "host/MockFactory.h"
#include "host/Tr.h"

#include <vendor/Dialog.h>

using Dialog = vendor::Dialog; // showQuestion: true for the confirming choice

#endif // HOST_DIALOG_H
