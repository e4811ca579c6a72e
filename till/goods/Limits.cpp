#include "till/goods/Limits.h"

#include <cmath>

namespace till {

bool isCount(double count)
{
    constexpr double halfAThousandth = 0.0005; // counts are kept to three decimals
    return count < greatestCount + halfAThousandth;
}

bool isSum(double sum)
{
    return std::abs(sum) <= static_cast<double>(greatestSum);
}

} // namespace till
