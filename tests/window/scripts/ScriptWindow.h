#ifndef TESTS_WINDOW_SCRIPTS_SCRIPTWINDOW_H
#define TESTS_WINDOW_SCRIPTS_SCRIPTWINDOW_H

#include "tests/support/Printers.h"
#include "tests/till/support/TestFront.h"
#include "tests/till/support/TillFixture.h"
#include "window/scripts/ScriptPanel.h"

#include <QtTest/QTest>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>

#include <algorithm>

namespace till {

//! A panel of scripts in English beside a register, used with mouse and keys.
class ScriptWindow : public TillTest
{
protected:
    ScriptWindow()
    {
        panel.chooseScript = [this](QWidget *, const QString &) { return chosen; };
        panel.chooseTarget = panel.chooseScript;
        panel.resize(500, 500);
        panel.show();
        panel.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&panel));
    }

    template <typename Widget>
    Widget &part(const char *name) const
    {
        return *panel.findChild<Widget *>(name);
    }
    void click(const char *button)
    {
        QTest::mouseClick(&part<QPushButton>(button), Qt::LeftButton);
    }
    bool canClick(const char *button) const { return part<QPushButton>(button).isEnabled(); }
    QString tip(const char *button) const { return part<QPushButton>(button).toolTip(); }
    QString status() const { return part<QLabel>("scriptStatus").text(); }
    QString printedText() const { return part<QPlainTextEdit>("scriptPrinted").toPlainText(); }

    //! Opens a script of these lines.
    void open(const QStringList &lines)
    {
        overwrite(path("s.till"), lines.join('\n').toUtf8());
        chosen = path("s.till");
        click("scriptOpen");
    }
    //! Waits until the script stands still.
    void settle()
    {
        EXPECT_TRUE(QTest::qWaitFor(
            [this] { return part<QPushButton>("scriptRun").text() == "Run"; }, 60000));
    }
    void runAll()
    {
        click("scriptRun");
        settle();
    }

    QTableView &lines() const { return part<QTableView>("scriptLines"); }
    QString cell(int row, ScriptModel::Column column) const
    {
        return lines().model()->index(row, column).data().toString();
    }
    //! The marks of all lines, "." where there is none.
    QString marks() const
    {
        QString all;
        for (int row = 0; row < lines().model()->rowCount(); ++row)
            all += cell(row, ScriptModel::Mark).isEmpty() ? "." : cell(row, ScriptModel::Mark);
        return all;
    }
    void clickLine(int row)
    {
        const QModelIndex index = lines().model()->index(row, ScriptModel::Text);
        lines().scrollTo(index);
        QTest::mouseClick(lines().viewport(), Qt::LeftButton, {},
                          lines().visualRect(index).center());
    }

    QString chosen; //!< the file that is named when one is asked for
    ScriptPanel panel{*till, notes, Translator("en")};
};

} // namespace till

#endif // TESTS_WINDOW_SCRIPTS_SCRIPTWINDOW_H
