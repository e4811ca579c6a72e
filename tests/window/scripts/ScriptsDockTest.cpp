#include "window/scripts/ScriptsDock.h"

#include "tests/window/support/PartTest.h"

#include <QtWidgets/QMainWindow>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QTableView>

namespace till {

namespace {

class ScriptsInADock : public PartTest
{
protected:
    ScriptsInADock()
    {
        dock = new ScriptsDock(*till, notes, Translator("en"));
        window.addDockWidget(Qt::RightDockWidgetArea, dock);
        window.addAction(dock->showAction());
        putUp(window, {700, 500});
    }

    QTabWidget &tabs() const { return part<QTabWidget>("scriptsTabs"); }

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
    const QAbstractItemModel &list = *part<QTableView>("receiptList").model();
    EXPECT_EQ(list.rowCount(), 0);
    QTest::mouseClick(tabs().tabBar(), Qt::LeftButton, {}, tabs().tabBar()->tabRect(1).center());
    EXPECT_EQ(list.rowCount(), 1);
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
