#include "window/look/KeyDock.h"

#include "tests/support/Patience.h"

#include <QtTest/QTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMainWindow>

#include <gtest/gtest.h>

namespace till {

namespace {

//! A window with two docks, one behind the other.
class KeyDocks : public testing::Test
{
protected:
    KeyDocks()
    {
        for (KeyDock *const dock : {first, second}) {
            dock->setWidget(new QLineEdit);
            window.addDockWidget(Qt::RightDockWidgetArea, dock);
            window.addAction(dock->showAction());
        }
        window.tabifyDockWidget(first, second);
        window.resize(400, 300);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window, patience));
        press(Qt::Key_F9);
    }

    void press(Qt::Key key)
    {
        QTest::keyClick(&window, key);
        QCoreApplication::processEvents();
    }
    static bool isSeen(const KeyDock *dock) { return !dock->visibleRegion().isEmpty(); }

    QMainWindow window;
    KeyDock *first = new KeyDock(Qt::Key_F9);
    KeyDock *second = new KeyDock(Qt::Key_F10);
};

TEST_F(KeyDocks, KeyOfTheOneBehind_BringsItToTheFront)
{
    EXPECT_TRUE(isSeen(first));
    EXPECT_FALSE(isSeen(second));
    press(Qt::Key_F10);
    EXPECT_TRUE(isSeen(second));
    EXPECT_FALSE(isSeen(first));
}

TEST_F(KeyDocks, KeyOfTheOneThatIsSeen_HidesIt)
{
    press(Qt::Key_F9);
    EXPECT_FALSE(first->isVisible());
    EXPECT_FALSE(first->showAction()->isChecked());
    press(Qt::Key_F9);
    EXPECT_TRUE(isSeen(first));
    EXPECT_TRUE(first->showAction()->isChecked());
}

TEST_F(KeyDocks, ShownDock_HasTheFocus)
{
    press(Qt::Key_F10);
    EXPECT_TRUE(second->widget()->hasFocus());
}

} // namespace

} // namespace till
