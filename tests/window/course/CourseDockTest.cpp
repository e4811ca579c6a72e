#include "window/course/CourseDock.h"

#include "tests/window/support/ModelTexts.h"
#include "tests/window/support/PartTest.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QTreeView>

namespace till {

namespace {

//! The dock in a window, in English, as it is used with mouse and keys.
class CourseInADock : public PartTest
{
protected:
    CourseInADock()
    {
        start(setup(), QStringLiteral("en"));
        open({});
    }

    void open(const CourseModel::Limits &limits)
    {
        dock = new CourseDock(notes, Translator("en"), limits);
        window = std::make_unique<QMainWindow>();
        window->addDockWidget(Qt::RightDockWidgetArea, dock);
        window->addAction(dock->showAction());
        putUp(*window, {700, 500});
        QGuiApplication::clipboard()->clear();
    }

    QTreeView &tree() const { return part<QTreeView>("courseTree"); }
    const QAbstractItemModel &shown() const { return *tree().model(); }

    void type(const QString &text) { QTest::keyClicks(&part<QLineEdit>("courseFilter"), text); }
    void clickRow(int row) { click(tree(), shown().index(row, 0)); }
    static QString copied() { return QGuiApplication::clipboard()->text(); }

    std::unique_ptr<QMainWindow> window;
    CourseDock *dock = nullptr;
};

TEST_F(CourseInADock, F9_HidesAndShows)
{
    QTest::keyClick(window.get(), Qt::Key_F9);
    EXPECT_FALSE(dock->isVisible());
    QTest::keyClick(window.get(), Qt::Key_F9);
    EXPECT_TRUE(dock->isVisible());
    EXPECT_TRUE(tree().hasFocus());
}

TEST_F(CourseInADock, WhatHappensWhileHidden_IsThere)
{
    QTest::keyClick(window.get(), Qt::Key_F9);
    done({"open", "add CHIPS"});
    QTest::keyClick(window.get(), Qt::Key_F9);
    EXPECT_EQ(textsOf(shown()), (QStringList{"open sale", "add CHIPS 1"}));
}

TEST_F(CourseInADock, NewestCommand_IsUnfolded)
{
    done({"open", "add CAN3", "add BEER 2"});
    EXPECT_FALSE(tree().isExpanded(shown().index(1, 0)));
    EXPECT_TRUE(tree().isExpanded(shown().index(2, 0)));
    EXPECT_TRUE(tree().isExpanded(rowWith(shown(), "event 19: position 2")));
}

TEST_F(CourseInADock, WithoutFollowing_NothingIsUnfolded)
{
    auto &follow = part<QCheckBox>("courseFollow");
    QTest::mouseClick(&follow, Qt::LeftButton, {}, {8, follow.height() / 2});
    done({"open", "add CAN3"});
    EXPECT_FALSE(tree().isExpanded(shown().index(1, 0)));
}

TEST_F(CourseInADock, Filter_ShowsWhatContainsIt)
{
    done({"open", "add CAN3", "add BEER 2", "add CHIPS"});
    type("TARA 1: FREE");
    EXPECT_EQ(textsOf(shown()), (QStringList{"add CAN3 1", "add BEER 2"}));
    const QModelIndex row = rowWith(shown(), "tara 1: free 3 → 1");
    ASSERT_TRUE(row.isValid());
    EXPECT_FALSE(tree().visualRect(row).isNull());
}

TEST_F(CourseInADock, Filter_HoldsForWhatHappensLater)
{
    type("beer");
    done({"open", "add CAN3", "add BEER 2"});
    EXPECT_EQ(textsOf(shown()), (QStringList{"add BEER 2"}));
}

TEST_F(CourseInADock, Copy_TakesTheSelectedRow)
{
    done({"open", "add CAN3", "add BEER 2"});
    clickRow(1);
    click("courseCopy");
    EXPECT_EQ(copied().count("\"kind\":\"command\""), 1);
    EXPECT_TRUE(copied().contains("\"text\":\"add CAN3 1\""));
}

TEST_F(CourseInADock, CopyByKey_TakesTheSelectedRow)
{
    done({"open", "add CAN3"});
    clickRow(0);
    QTest::keyClick(&tree(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copied().count("\"kind\":\"command\""), 1);
    EXPECT_TRUE(copied().contains("\"text\":\"open sale\""));
}

TEST_F(CourseInADock, CopyWithoutASelection_TakesAllThatIsShown)
{
    done({"open", "add CAN3", "add BEER 2", "add CHIPS"});
    type("beer");
    click("courseCopy");
    EXPECT_EQ(copied().count("\"kind\":\"command\""), 1);
    QTest::keyClick(&part<QLineEdit>("courseFilter"), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&part<QLineEdit>("courseFilter"), Qt::Key_Delete);
    click("courseCopy");
    EXPECT_EQ(copied().count("\"kind\":\"command\""), 4);
}

TEST_F(CourseInADock, Keys_FoldAndUnfold)
{
    done({"open", "add CAN3"});
    clickRow(0);
    QTest::keyClick(&tree(), Qt::Key_Right);
    EXPECT_TRUE(tree().isExpanded(shown().index(0, 0)));
    QTest::keyClick(&tree(), Qt::Key_Left);
    EXPECT_FALSE(tree().isExpanded(shown().index(0, 0)));
}

TEST_F(CourseInADock, WhatIsGone_IsSaid)
{
    EXPECT_EQ(part<QLabel>("courseKept").text(), "The last 200 commands are kept.");
    open({2, 1000});
    done({"open", "add CAN3", "add BEER 2"});
    EXPECT_EQ(part<QLabel>("courseKept").text(),
              "The last 2 commands are kept; 1 before them are gone.");
}

TEST_F(CourseInADock, OtherLanguage_ChangesAllTexts)
{
    dock->translate(Translator("ru"));
    EXPECT_EQ(dock->windowTitle(), "Ход событий (F9)");
    EXPECT_EQ(part<QPushButton>("courseCopy").text(), "Копировать как JSON");
    EXPECT_EQ(part<QLabel>("courseKept").text(), "Хранятся последние команды: 200.");
}

TEST_F(CourseInADock, WhatCanBeTouched_HasAName)
{
    for (const char *name : {"courseTree", "courseFilter"})
        EXPECT_FALSE(part<QWidget>(name).accessibleName().isEmpty()) << name;
    for (const char *name : {"courseCopy"})
        EXPECT_FALSE(part<QPushButton>(name).text().isEmpty()) << name;
    EXPECT_FALSE(part<QCheckBox>("courseFollow").text().isEmpty());
}

} // namespace

} // namespace till
