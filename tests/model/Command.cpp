#include "tests/model/Command.h"

#include <charconv>

namespace model {

Reply Command::reply(int request) const
{
    constexpr int known = 8; // as many as the bits of `replies` hold
    return static_cast<Reply>(request < known ? (replies >> (2 * request)) & 3 : 0);
}

std::string toText(double quantity)
{
    char text[64];
    const auto end = std::to_chars(text, text + sizeof text, quantity).ptr;
    return {text, end};
}

} // namespace model
