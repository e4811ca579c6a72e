#include "tests/support/Chance.h"

#include <gtest/gtest.h>

#include <QtCore/QScopeGuard>
#include <QtCore/qglobal.h>

// What a developer asks chance for.

namespace {

//! What \a read gives, or complains of, where the environment's \a variable says \a text.
template <typename Read>
std::string given(Read read, const char *variable, const char *text)
{
    const bool wasSet = qEnvironmentVariableIsSet(variable);
    const auto restore = qScopeGuard([=, before = qgetenv(variable)] {
        wasSet ? qputenv(variable, before) : qunsetenv(variable);
    });
    qputenv(variable, text);
    try {
        return std::to_string(read());
    } catch (const std::runtime_error &error) {
        return error.what();
    }
}

std::string seed(const char *text)
{
    return given(testSeed, "TEST_SEED", text);
}

std::string effort(const char *text)
{
    return given(testEffort, "TEST_EFFORT", text);
}

TEST(Chance, Number_IsTaken)
{
    EXPECT_EQ(seed("17"), "17");
    EXPECT_EQ(seed("18446744073709551615"), "18446744073709551615");
    EXPECT_EQ(effort("10"), "10");
    EXPECT_EQ(effort("0"), "1");
}

TEST(Chance, WhatIsNoNumber_IsAnErrorThatNamesIt)
{
    for (const char *text : {"abc", "17x", "-1", "1e3", " 1", "", "18446744073709551616"})
        EXPECT_EQ(seed(text), "TEST_SEED=" + std::string(text) + " is no number");
    for (const char *text : {"ten", "1.5", "2147483648"})
        EXPECT_EQ(effort(text), "TEST_EFFORT=" + std::string(text) + " is no number");
}

} // namespace
