#ifndef TESTS_SUPPORT_CHANCE_H
#define TESTS_SUPPORT_CHANCE_H

#include <cstdint>
#include <cstdlib>
#include <string>

// What the tests that try things at random have in common.

//! What all chance starts from: the environment's TEST_SEED, or else the same number every time.
inline std::uint64_t testSeed()
{
    const char *const text = std::getenv("TEST_SEED");
    return text ? std::strtoull(text, nullptr, 10) : 20240607;
}

//! How many times as much as usual is tried, 1 or more: the environment's TEST_EFFORT.
inline int testEffort()
{
    const char *const text = std::getenv("TEST_EFFORT");
    const int effort = text ? std::atoi(text) : 1;
    return effort < 1 ? 1 : effort;
}

//! What a developer types before a test's command to have the same chance once more.
inline std::string repeatedBy(std::uint64_t seed)
{
    return "TEST_SEED=" + std::to_string(seed)
           + (testEffort() > 1 ? " TEST_EFFORT=" + std::to_string(testEffort()) : "");
}

#endif // TESTS_SUPPORT_CHANCE_H
