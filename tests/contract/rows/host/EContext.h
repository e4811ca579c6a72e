#ifndef HOST_ECONTEXT_H
#define HOST_ECONTEXT_H

// Without the answer that refuses, and with one that is no number.
namespace EContext {

enum Code { Receipt = 6 };
enum Result { Cancel = 0 };
inline constexpr struct
{
} Continue;

} // namespace EContext

#endif // HOST_ECONTEXT_H
