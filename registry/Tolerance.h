#ifndef REGISTRY_TOLERANCE_H
#define REGISTRY_TOLERANCE_H

#include <cmath>

//! Comparisons of capacities and quantities. All are made on a difference that the caller computed.
namespace packaging {

//! Absolute; quantities are kept to three decimals, and half of the last one counts as nothing.
inline constexpr double Tolerance = 0.0005;

//! Whether \a delta counts as nothing: its magnitude is strictly below the tolerance.
inline bool isZero(double delta)
{
    return std::abs(delta) < Tolerance;
}

//! Whether \a delta is more than nothing: strictly above the tolerance.
inline bool isPositive(double delta)
{
    return delta > Tolerance;
}

//! Whether \a delta is less than nothing: strictly below the negative tolerance.
inline bool isNegative(double delta)
{
    return isPositive(-delta);
}

} // namespace packaging

#endif // REGISTRY_TOLERANCE_H
