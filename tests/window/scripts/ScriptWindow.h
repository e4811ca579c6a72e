#ifndef TESTS_WINDOW_SCRIPTS_SCRIPTWINDOW_H
#define TESTS_WINDOW_SCRIPTS_SCRIPTWINDOW_H

#include "tests/till/support/TestFront.h"
#include "tests/window/support/PartTest.h"
#include "window/scripts/ScriptPanel.h"

#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QTableView>

#include <algorithm>

namespace till {

//! A panel of scripts in English beside a register, used with mouse and keys.
class ScriptWindow : public PartTest
{
protected:
    ScriptWindow()
    {
        panel.chooseScript = [this](QWidget *, const QString &) { return chosen; };
        panel.chooseTarget = panel.chooseScript;
        putUp(panel);
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
    //! Waits until the script stands still, and its button says \a run again.
    void settle(const QString &run = "Run")
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return part<QPushButton>("scriptRun").text() == run; },
                                    patience));
    }
    void runAll(const QString &run = "Run")
    {
        click("scriptRun");
        settle(run);
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
    void clickLine(int row) { click(lines(), lines().model()->index(row, ScriptModel::Text)); }

    QString chosen; //!< the file that is named when one is asked for
    ScriptPanel panel{*till, notes, Translator("en")};
};

} // namespace till

#endif // TESTS_WINDOW_SCRIPTS_SCRIPTWINDOW_H
