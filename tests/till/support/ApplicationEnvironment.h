#ifndef TESTS_TILL_SUPPORT_APPLICATIONENVIRONMENT_H
#define TESTS_TILL_SUPPORT_APPLICATIONENVIRONMENT_H

#include <QtCore/QCoreApplication>

#include <gtest/gtest.h>

#include <memory>

namespace till {

//! Qt SQL loads its driver through the application object.
class ApplicationEnvironment : public testing::Environment
{
public:
    void SetUp() override
    {
        static int argc = 1;
        static char name[] = "till_test";
        static char *argv[] = {name, nullptr};
        m_application = std::make_unique<QCoreApplication>(argc, argv);
    }
    void TearDown() override { m_application.reset(); }

private:
    std::unique_ptr<QCoreApplication> m_application;
};

} // namespace till

#endif // TESTS_TILL_SUPPORT_APPLICATIONENVIRONMENT_H
