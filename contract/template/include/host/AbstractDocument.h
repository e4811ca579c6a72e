#ifndef HOST_ABSTRACTDOCUMENT_H
#define HOST_ABSTRACTDOCUMENT_H

#include "host/GoodsItem.h" // positions are what a document holds

#include <vendor/AbstractDocument.h>

// The host makes documents and hands them over: its own type.
using AbstractDocument = vendor::AbstractDocument;

#endif // HOST_ABSTRACTDOCUMENT_H
