#include "host/Finally.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

namespace {

std::string messageOf(const std::function<void()> &body)
{
    try {
        body();
    } catch (const std::exception &error) {
        return error.what();
    }
    return "nothing thrown";
}

TEST(Finally, EarlyReturn_RunsOnce)
{
    int runs = 0;
    const auto leaveEarly = [&](bool early) {
        const Finally cleanUp([&] { ++runs; });
        if (early)
            return 1;
        return 2;
    };

    EXPECT_EQ(leaveEarly(true), 1);
    EXPECT_EQ(runs, 1);
}

TEST(Finally, SeveralInAScope_RunLastFirst)
{
    std::string order;
    {
        const Finally first([&] { order += "first "; });
        const Finally second([&] { order += "second "; });
    }
    EXPECT_EQ(order, "second first ");
}

TEST(Finally, ExceptionPasses_RunsOnceAndLetsItPass)
{
    int runs = 0;
    const std::string message = messageOf([&] {
        const Finally cleanUp([&] { ++runs; });
        throw std::runtime_error("from the scope");
    });

    EXPECT_EQ(message, "from the scope");
    EXPECT_EQ(runs, 1);
}

TEST(Finally, CleanUpThrows_ReachesTheCaller)
{
    const std::string message = messageOf(
        [] { const Finally cleanUp([] { throw std::runtime_error("from the clean-up"); }); });

    EXPECT_EQ(message, "from the clean-up");
}

TEST(Finally, AfterTheRun_WhatTheFunctionHeldIsReleased)
{
    const auto held = std::make_shared<int>(1);
    {
        const Finally cleanUp([held] {});
        EXPECT_EQ(held.use_count(), 2);
    }
    EXPECT_EQ(held.use_count(), 1);
}

} // namespace
