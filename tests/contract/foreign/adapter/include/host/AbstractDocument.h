#ifndef HOST_ABSTRACTDOCUMENT_H
#define HOST_ABSTRACTDOCUMENT_H

#include "host/GoodsItem.h"

#include <shopline/Receipt.h>

using AbstractDocument = shopline::Receipt;

#endif // HOST_ABSTRACTDOCUMENT_H
