#ifndef TESTS_SUPPORT_CHANCE_H
#define TESTS_SUPPORT_CHANCE_H

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string>

// What the tests that try things at random have in common.

//! The environment's \a variable, or else \a usual. Throws where that is no number: a test that
//! went on would try something else than was asked for.
template <typename Number>
Number chosen(const char *variable, Number usual)
{
    const char *const text = std::getenv(variable);
    if (!text)
        return usual;
    const char *const end = text + std::strlen(text);
    Number number = 0;
    const auto read = std::from_chars(text, end, number);
    if (read.ec == std::errc() && read.ptr == end)
        return number;
    throw std::runtime_error(std::string(variable) + '=' + text + " is no number");
}

//! What all chance starts from: the environment's TEST_SEED, or else the same number every time.
inline std::uint64_t testSeed()
{
    return chosen<std::uint64_t>("TEST_SEED", 20240607);
}

//! How many times as much as usual is tried, 1 or more: the environment's TEST_EFFORT.
inline int testEffort()
{
    return std::max(1, chosen<int>("TEST_EFFORT", 1));
}

//! What a developer types before a test's command to have the same chance once more.
inline std::string repeatedBy(std::uint64_t seed)
{
    return "TEST_SEED=" + std::to_string(seed)
           + (testEffort() > 1 ? " TEST_EFFORT=" + std::to_string(testEffort()) : "");
}

#endif // TESTS_SUPPORT_CHANCE_H
