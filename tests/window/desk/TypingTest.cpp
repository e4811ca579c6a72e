#include "tests/window/support/WindowTest.h"

#include <QtWidgets/QDockWidget>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QTableView>

namespace till {

namespace {

//! A scanner types while something else than the code field has the focus.
class TypingTest : public WindowTest
{
protected:
    //! The code and Enter, wherever the focus is.
    void scanBlindly(const QString &code)
    {
        type(code);
        press(Qt::Key_Return);
    }
    void showTab(int tab)
    {
        QTabBar &bar = *find<QTabWidget>("scriptsTabs").tabBar();
        click(bar, bar.tabRect(tab).center());
    }
};

TEST_F(TypingTest, InTheCourse_IsACode)
{
    press(Qt::Key_F9);
    EXPECT_TRUE(find("courseTree").hasFocus());

    scanBlindly("BEER");

    EXPECT_EQ(commands().value(commands().size() - 1), "add BEER 1: done");
}

TEST_F(TypingTest, InTheFilterOfTheCourse_IsTheFilters)
{
    press(Qt::Key_F9);
    click("courseFilter");

    scanBlindly("BEER");

    EXPECT_EQ(find<QLineEdit>("courseFilter").text(), "BEER");
    EXPECT_EQ(commands(), QStringList());
}

TEST_F(TypingTest, InADockThatFloats_IsACode)
{
    press(Qt::Key_F9);
    find<QDockWidget>("course").setFloating(true);
    auto &tree = find("courseTree");
    tree.setFocus();

    for (const QChar sign : QStringLiteral("BEER"))
        QTest::sendKeyEvent(QTest::Click, &tree, Qt::Key_unknown, sign, {});

    QTest::keyClick(&tree, Qt::Key_Return);

    EXPECT_EQ(commands().value(commands().size() - 1), "add BEER 1: done");
}

TEST_F(TypingTest, InTheLinesOfAScript_IsACode_AndRunsNothing)
{
    openScript("open\nadd CHIPS\nadd CHIPS\n");
    auto &lines = find<QTableView>("scriptLines");
    click(*lines.viewport(), lines.visualRect(lines.model()->index(2, 1)).center());
    EXPECT_TRUE(lines.hasFocus());

    scanBlindly("BEER");
    QCoreApplication::processEvents();

    EXPECT_EQ(commands(), (QStringList{"open sale: done", "add BEER 1: done"}));
}

TEST_F(TypingTest, InTheListOfReceipts_IsACode)
{
    scan("BAG");
    press(Qt::Key_F10);
    showTab(1);
    for (const char *const place :
         {"receiptList", "receiptStates", "receiptPage", "receiptsRead"}) {
        find(place).setFocus();
        const qsizetype before = commands().size();

        scanBlindly("BEER");

        EXPECT_EQ(commands().mid(before), QStringList{"add BEER 1: done"}) << place;
    }
}

} // namespace

} // namespace till
