#include "tests/window/support/WindowTest.h"

#include <QtGui/QScreen>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabBar>

namespace till {

namespace {

using WindowLooks = WindowTest;

TEST_F(WindowLooks, Badge_TellsOfTaraControl)
{
    EXPECT_EQ(textOf("control"), "○ tara control is ready");
    scan("PET1");
    EXPECT_EQ(textOf("control"), "● tara is controlled");
    carryOut(command::AttachOrder{"7"});
    EXPECT_EQ(textOf("control"), "◐ tara control suspended");

    till::Setup plain = setup();
    plain.plugin.clear();
    open(plain);
    EXPECT_EQ(textOf("control"), "○ no tara control");
}

TEST_F(WindowLooks, Language_ChangesWhileItRuns)
{
    scan("PET1");
    EXPECT_EQ(textOf("header"), "Receipt No. 1 · open");

    click("language");

    EXPECT_EQ(textOf("header"), "Чек № 1 · открыт");
    EXPECT_EQ(textOf("control"), "● тара под контролем");
    EXPECT_EQ(find<QPushButton>("quantity").accessibleName(), "Количество");
    EXPECT_EQ(find<QPushButton>("openSale").toolTip(), "Чек уже открыт: оплатите или отмените его");
    EXPECT_EQ(said(1), "PET1 Бутылка ПЭТ 1 л\n0 / 1, пусто");

    press(Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(textOf("header"), "Receipt No. 1 · open");
}

TEST_F(WindowLooks, MenuOfAField_IsInTheLanguageToo)
{
    const auto undo = [this] {
        const std::unique_ptr<QMenu> menu(find<QLineEdit>("code").createStandardContextMenu());
        return menu->actions().constFirst()->text().section('\t', 0, 0);
    };
    EXPECT_EQ(undo(), "&Undo");

    click("language");

    EXPECT_TRUE(undo().contains("тменить")) << undo().toStdString();
}

TEST_F(WindowLooks, EverythingThatCanBeTouched_HasAnAccessibleName)
{
    scan("PET1");
    const auto widgets = window->findChildren<QWidget *>();
    for (const QWidget *const widget : widgets) {
        if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible())
            continue;
        const auto *const button = qobject_cast<const QAbstractButton *>(widget);
        // Each tab says its own; Qt keeps a bar without any for docks that are hidden.
        const bool isTabs = qobject_cast<const QTabBar *>(widget) != nullptr;
        const bool hasText = isTabs || (button && !button->text().isEmpty());
        EXPECT_TRUE(hasText || !widget->accessibleName().isEmpty())
            << widget->metaObject()->className() << ' ' << widget->objectName().toStdString();
    }
}

TEST_F(WindowLooks, SmallAndLargeScreen_ShowEverything)
{
    for (const QSize size : {QSize(1024, 600), QSize(1920, 1080)}) {
        window->resize(size);
        QCoreApplication::processEvents();
        EXPECT_EQ(window->size(), size);
        for (const char *const name : {"code", "search", "tiles", "receipt", "shelf", "total",
                                       "pay", "quantity", "menu", "control"}) {
            const QWidget &widget = find(name);
            const QRect area(widget.mapTo(window.get(), QPoint()), widget.size());
            EXPECT_TRUE(window->rect().contains(area)) << name;
            EXPECT_FALSE(area.isEmpty()) << name;
        }
    }
}

TEST_F(WindowLooks, LargeFont_IsFollowed)
{
    const QFont before = QApplication::font();
    const int height = window->table().rowHeight(0);
    scan("PET1");
    QFont large = before;
    large.setPointSizeF(before.pointSizeF() * 2);

    QApplication::setFont(large);
    QCoreApplication::processEvents();

    EXPECT_GE(window->table().rowHeight(0), 2 * QFontMetrics(large).height());
    EXPECT_GT(window->table().rowHeight(0), height);
    QApplication::setFont(before);
}

TEST_F(WindowLooks, Docks_OpenAndCloseByKeysAndInTheMenu)
{
    const auto isShown = [this](const char *className) {
        const auto docks = window->findChildren<QDockWidget *>();
        for (const QDockWidget *const dock : docks) {
            if (dock->windowTitle().startsWith(QLatin1String(className)))
                return dock->isVisible();
        }
        ADD_FAILURE() << className;
        return false;
    };
    EXPECT_FALSE(isShown("Course"));

    press(Qt::Key_F9);
    EXPECT_TRUE(isShown("Course"));
    press(Qt::Key_F9);
    EXPECT_FALSE(isShown("Course"));
    press(Qt::Key_F10);
    EXPECT_TRUE(isShown("Scripts"));
    openMenu({Qt::Key_Up, Qt::Key_Return});
    EXPECT_FALSE(isShown("Scripts"));
}

//! What a screen of 1024 x 600 has in logical pixels where all is half as large again.
TEST_F(WindowLooks, ScreenSmallForItsFont_IsNotExceededByTheDocksEither)
{
    const QSize small(683, 380);
    for (const Qt::Key dock : {Qt::Key_F9, Qt::Key_F10}) {
        press(dock);
        window->resize(small);
        QCoreApplication::processEvents();
        EXPECT_EQ(window->size(), small) << dock;
    }
}

TEST_F(WindowLooks, ScreenSmallForItsFont_ShowsWhatTheFocusGoesTo)
{
    scan("BAG");
    window->resize(400, 300);
    QCoreApplication::processEvents();
    EXPECT_EQ(window->size(), QSize(400, 300));
    for (const char *const name : {"pay", "search", "shelf"}) {
        const QWidget &widget = find(name);
        for (int tabs = 0; tabs < 50 && !widget.hasFocus(); ++tabs)
            press(Qt::Key_Tab);
        EXPECT_TRUE(widget.hasFocus()) << name;
        EXPECT_FALSE(widget.visibleRegion().isEmpty()) << name;
    }
}

TEST_F(WindowLooks, PadOfADialog_ShowsItsKeysWhole)
{
    scan("BAG");
    select({1});

    click("split");

    QCoreApplication::processEvents();
    for (const char *const name : {"key7", "key+", "key⌫"}) {
        const QWidget &key = find(name);
        EXPECT_EQ(key.visibleRegion().boundingRect(), key.rect()) << name;
        EXPECT_TRUE(top().rect().contains(QRect(key.mapTo(&top(), QPoint()), key.size()))) << name;
    }
    press(Qt::Key_Escape);
}

TEST_F(WindowLooks, DialogOfALargeFont_TakesTheScreenForItsPad)
{
    scan("BAG");
    select({1});
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSizeF(before.pointSizeF() * 2.5);
    QApplication::setFont(large);

    click("split");

    QCoreApplication::processEvents();
    const QSize screen = top().screen()->availableSize();
    EXPECT_LE(top().width(), screen.width());
    EXPECT_LE(top().height(), screen.height());
    const QWidget &key = find("key⌫");
    EXPECT_EQ(key.visibleRegion().boundingRect(), key.rect());
    press(Qt::Key_Escape);
    QApplication::setFont(before);
}

} // namespace

} // namespace till
