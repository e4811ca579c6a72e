#ifndef TILL_GOODS_LIMITS_H
#define TILL_GOODS_LIMITS_H

#include "till/goods/Money.h"

namespace till {

//! The greatest count of pieces in a position. What is above is a slip of the finger.
constexpr double greatestCount = 999'999.999;
//! The greatest sum of a receipt: what a cashier can type, far from where sums would overflow.
constexpr Kopecks greatestSum = greatestAmount;

//! Whether \a count pieces can stand in one position. What is not a number cannot.
bool isCount(double count);
//! Whether a position or a receipt can come to \a sum kopecks. What is not a number cannot be one.
bool isSum(double sum);

} // namespace till

#endif // TILL_GOODS_LIMITS_H
