#ifndef TESTS_TILL_SUPPORT_RESULTS_H
#define TESTS_TILL_SUPPORT_RESULTS_H

#include "till/result/Result.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace till {

//! The text of the fault; empty when there is none.
template <typename Value, typename Error>
QString faultText(const Result<Value, Error> &result)
{
    return result ? QString() : result.error().text();
}

//! What there must be; otherwise the test fails, and what it goes on with is made anew.
template <typename Value, typename Error>
Value must(Result<Value, Error> result)
{
    EXPECT_TRUE(result) << faultText(result).toStdString();
    if constexpr (!std::is_void_v<Value>)
        return result ? std::move(*result) : Value();
}

} // namespace till

#endif // TESTS_TILL_SUPPORT_RESULTS_H
