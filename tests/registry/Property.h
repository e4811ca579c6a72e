#ifndef TESTS_REGISTRY_PROPERTY_H
#define TESTS_REGISTRY_PROPERTY_H

#include "tests/support/Chance.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <QtCore/QLoggingCategory>

#include <sstream>
#include <utility>

/*!
 * Checks \a property, which takes generated arguments or uses `RC_ASSERT`, on 1000 cases. A failure
 * shows the smallest case found, and what to type to find it again.
 */
template <typename Testable>
void checkProperty(Testable &&property)
{
    // What the plugin logs on thousands of cases is for the appenders, not for the console.
    QLoggingCategory::setFilterRules(QStringLiteral("packaging=false"));
    const auto *test = testing::UnitTest::GetInstance()->current_test_info();
    auto params = rc::detail::configuration().testParams;
    params.seed = testSeed();
    params.maxSuccess = 1000 * testEffort();

    const auto result =
        rc::detail::checkTestable(std::forward<Testable>(property),
                                  rc::detail::TestMetadata{test->name(), test->name()}, params);

    if (!result.template is<rc::detail::SuccessResult>()) {
        std::ostringstream message;
        rc::detail::printResultMessage(result, message);
        FAIL() << message.str() << "\nTo find it again: " << repeatedBy(params.seed);
    }
}

#endif // TESTS_REGISTRY_PROPERTY_H
