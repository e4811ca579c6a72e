#ifndef HOST_QUANTITY_H
#define HOST_QUANTITY_H

#include <shopline/Desk.h>

using Quantity = shopline::Amount;
using EQuantMode = shopline::AmountKind;
#if defined(SHOPLINE_BREAKS_Numbers_QuantityMode)
inline constexpr EQuantMode quantModeRecalculated = shopline::AsTyped;
#else
inline constexpr EQuantMode quantModeRecalculated = shopline::Recomputed;
#endif

#endif // HOST_QUANTITY_H
