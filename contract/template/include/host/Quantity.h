#ifndef HOST_QUANTITY_H
#define HOST_QUANTITY_H

#include <vendor/Quantity.h>

// It travels as the value of a modifier: the SDK's own type, a Q_GADGET whose moc output is in the
// SDK's library. An adapter of headers alone has no place for one of its own.
using Quantity = vendor::Quantity;

using EQuantMode = vendor::QuantityMode;
inline constexpr EQuantMode quantModeRecalculated = vendor::Recalculated; // 7

#endif // HOST_QUANTITY_H
