#include "till/goods/Limits.h"

namespace till {

bool isCount(double count)
{
    constexpr double halfAThousandth = 0.0005; // counts are kept to three decimals
    return count < greatestCount + halfAThousandth;
}

} // namespace till
