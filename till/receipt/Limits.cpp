#include "till/receipt/Limits.h"

namespace till {

QString countFault(double count)
{
    constexpr double halfAThousandth = 0.0005; // counts are kept to three decimals
    if (count < greatestCount + halfAThousandth)
        return {};
    return "the quantity must not be above " + toText(greatestCount);
}

} // namespace till
