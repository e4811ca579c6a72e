#include <QtCore/QCoreApplication>

#include <gmock/gmock.h>

// Processes and the database's driver want an application object.
int main(int argc, char *argv[])
{
    testing::InitGoogleMock(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
