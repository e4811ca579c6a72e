#include <gmock/gmock.h>

#include <QtWidgets/QApplication>

// Tests of the window: with widgets, without a display unless QT_QPA_PLATFORM names one.
int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
