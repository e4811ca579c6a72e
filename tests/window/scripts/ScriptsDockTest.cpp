#include "window/scripts/ScriptsDock.h"

#include "tests/support/Printers.h"
#include "tests/till/support/TillFixture.h"

#include <QtTest/QTest>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QTableView>

namespace till {

namespace {

class ScriptsInADock : public TillTest
{
protected:
    ScriptsInADock()
    {
        dock = new ScriptsDock(*till, notes, Translator("en"));
        window.addDockWidget(Qt::RightDockWidgetArea, dock);
        window.addAction(dock->showAction());
        window.resize(700, 500);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QTabWidget &tabs() const { return *dock->findChild<QTabWidget *>("scriptsTabs"); }

    QMainWindow window;
    ScriptsDock *dock = nullptr;
};

TEST_F(ScriptsInADock, F10_HidesAndShows)
{
    QTest::keyClick(&window, Qt::Key_F10);
    EXPECT_FALSE(dock->isVisible());
    QTest::keyClick(&window, Qt::Key_F10);
    EXPECT_TRUE(dock->isVisible());
    EXPECT_TRUE(tabs().isAncestorOf(QApplication::focusWidget()));
}

TEST_F(ScriptsInADock, PastReceipts_AreReadWhenTheirPageIsSeen)
{
    done({"open", "add CHIPS", "pay"});
    const auto *const list = dock->findChild<QTableView *>("receiptList");
    EXPECT_EQ(list->model()->rowCount(), 0);
    QTest::mouseClick(tabs().tabBar(), Qt::LeftButton, {}, tabs().tabBar()->tabRect(1).center());
    EXPECT_EQ(list->model()->rowCount(), 1);
}

TEST_F(ScriptsInADock, OtherLanguage_ChangesItsTexts)
{
    dock->translate(Translator("ru"));
    EXPECT_EQ(dock->windowTitle(), "Сценарии (F10)");
    EXPECT_EQ(tabs().tabText(0), "Сценарий");
    EXPECT_EQ(tabs().tabText(1), "Прошлые чеки");
}

} // namespace

} // namespace till
