#ifndef HOST_ECONTEXT_H
#define HOST_ECONTEXT_H

#include <vendor/Context.h>

namespace EContext {

using Code = vendor::Context;
inline constexpr Code Receipt = vendor::ReceiptContext; // 6

using Result = vendor::TriggerResult; // what a trigger answers, and what runAction gives
inline constexpr Result Cancel = vendor::ResultCancel;     // 0
inline constexpr Result Error = vendor::ResultError;       // 1
inline constexpr Result Continue = vendor::ResultContinue; // 2; comparable with an int

} // namespace EContext

#endif // HOST_ECONTEXT_H
