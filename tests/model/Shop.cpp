#include "tests/model/Shop.h"

#include <string_view>

std::string model::identifier(std::uint64_t salt, int number)
{
    std::uint64_t bits = salt + 0x9e3779b97f4a7c15U * static_cast<std::uint64_t>(number);
    bits = (bits ^ (bits >> 30U)) * 0xbf58476d1ce4e5b9U;
    bits = (bits ^ (bits >> 27U)) * 0x94d049bb133111ebU;
    // Letters that differ only in case are different letters.
    constexpr std::string_view letters = "aAbBcCzZ";
    std::string text = "{";
    for (int i = 0; i < 3; ++i, bits >>= 7U)
        text += letters[(bits >> 32U) % letters.size()];
    return text + '-' + std::to_string(number) + '}';
}
