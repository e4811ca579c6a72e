#ifndef TESTS_TILL_SUPPORT_FOLDERTEST_H
#define TESTS_TILL_SUPPORT_FOLDERTEST_H

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/qlogging.h>

#include <gtest/gtest.h>

#include <cstring>
#include <memory>

namespace till {

//! The application object, through which Qt SQL loads its driver and processes are waited for,
//! unless the program has made one.
class ApplicationEnvironment : public testing::Environment
{
public:
    void SetUp() override
    {
        if (QCoreApplication::instance())
            return;
        static int argc = 1;
        static char name[] = "till_test";
        static char *argv[] = {name, nullptr};
        m_application = std::make_unique<QCoreApplication>(argc, argv);
    }
    void TearDown() override { m_application.reset(); }

private:
    std::unique_ptr<QCoreApplication> m_application;
};

inline testing::Environment *const application =
    testing::AddGlobalTestEnvironment(new ApplicationEnvironment);

//! A test with a folder of its own, which fails when Qt has something to say. The plugin's log
//! lines go to Qt too, and are no fault.
class FolderTest : public testing::Test
{
protected:
    FolderTest()
        : m_handlerBefore(qInstallMessageHandler(failOnMessage))
    {
        EXPECT_TRUE(directory.isValid());
    }
    ~FolderTest() override { qInstallMessageHandler(m_handlerBefore); }

    QString path(const QString &name) const { return directory.filePath(name); }

    static QByteArray contents(const QString &path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        return file.readAll();
    }
    static void overwrite(const QString &path, const QByteArray &contents)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
        ASSERT_EQ(file.write(contents), contents.size());
    }

    QTemporaryDir directory;

private:
    static void failOnMessage(QtMsgType, const QMessageLogContext &context, const QString &text)
    {
        // Qt's platform without a display says of windows what it does not do with them.
        if (text.startsWith(QLatin1String("This plugin does not support")))
            return;
        if (context.category == nullptr || std::strcmp(context.category, "packaging") != 0)
            ADD_FAILURE() << "Qt says: " << text.toStdString();
    }

    QtMessageHandler m_handlerBefore;
};

} // namespace till

#endif // TESTS_TILL_SUPPORT_FOLDERTEST_H
