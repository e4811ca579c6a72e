#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>

// What a user sets to choose and shape the output. Qt reads it from the environment, the rules when
// the application object is made, so it is set before that. The developer's own is kept out.
int main(int argc, char **argv)
{
    qputenv("QT_LOGGING_RULES", "log4qt_test.silenced.info=false\nlog4qt_test.tree.*=false");
    qputenv("QT_MESSAGE_PATTERN", "%{category}|%{type}|%{message}");
    qunsetenv("QT_LOGGING_CONF");
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
