#ifndef TESTS_REGISTRY_PROPERTY_H
#define TESTS_REGISTRY_PROPERTY_H

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <QtCore/QLoggingCategory>

#include <algorithm>
#include <sstream>
#include <utility>

/*!
 * Checks \a property, which takes generated arguments or uses `RC_ASSERT`, on at least 2000 cases.
 * A failure shows the smallest case found and a number; RC_PARAMS="seed=..." with it runs the same
 * again.
 */
template <typename Testable>
void checkProperty(Testable &&property)
{
    // What the plugin logs on thousands of cases is for the appenders, not for the console.
    QLoggingCategory::setFilterRules(QStringLiteral("packaging=false"));
    const auto *test = testing::UnitTest::GetInstance()->current_test_info();
    auto params = rc::detail::configuration().testParams;
    params.maxSuccess = std::max(params.maxSuccess, 2000);

    const auto result =
        rc::detail::checkTestable(std::forward<Testable>(property),
                                  rc::detail::TestMetadata{test->name(), test->name()}, params);

    if (!result.template is<rc::detail::SuccessResult>()) {
        std::ostringstream message;
        rc::detail::printResultMessage(result, message);
        FAIL() << message.str() << "\nTo run it again: RC_PARAMS=\"seed=" << params.seed
               << " max_size=" << params.maxSize << "\"";
    }
}

#endif // TESTS_REGISTRY_PROPERTY_H
