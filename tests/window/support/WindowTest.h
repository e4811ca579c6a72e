#ifndef TESTS_WINDOW_SUPPORT_WINDOWTEST_H
#define TESTS_WINDOW_SUPPORT_WINDOWTEST_H

#include "tests/support/Printers.h"
#include "tests/till/support/FolderTest.h"
#include "tests/till/support/Results.h"
#include "till/course/Notes.h"
#include "till/register/CashDesk.h"
#include "window/desk/TillWindow.h"
#include "window/receipt/ReceiptTable.h"
#include "window/shelf/Shelf.h"

#include <QtTest/QTest>
#include <QtWidgets/QLineEdit>

#include <memory>

namespace till {

/*!
 * The window of a till of the sample shop with the real plugin, on a database of its own, and hands
 * that click and type in it. Nothing is called that a cashier could not do.
 */
class WindowTest : public FolderTest
{
protected:
    WindowTest();
    ~WindowTest() override;

    till::Setup setup() const;
    //! Opens a window in place of the one before.
    void open(const till::Setup &setup, const QString &language = QStringLiteral("en"));
    void close();

    //! The widget of that name, which must be there, in the window or in the dialog on top of it.
    template <typename Widget = QWidget>
    Widget &find(const QString &name) const
    {
        Widget *const found = top().findChild<Widget *>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return *found;
    }
    QWidget &top() const;

    void click(const QString &name) { click(find(name)); }
    static void click(QWidget &widget, QPoint at = {}, Qt::KeyboardModifiers keys = {});
    void press(Qt::Key key, Qt::KeyboardModifiers keys = {});
    //! Types \a text where the focus is.
    void type(const QString &text);

    //! Types the code into its field, and Enter.
    void scan(const QString &code);
    //! Touches the tile of the article with that code.
    void touchTile(const QString &code);
    //! Clicks on the rows of these positions: the first one alone, the others beside it.
    void select(const QList<int> &posnums);
    //! Types into the dialog that is open, and Enter.
    void enter(const QString &text);
    //! Clicks on the menu, in which these keys are pressed.
    void openMenu(const QList<Qt::Key> &keys);
    //! The next questions will be answered so, with a click; any further one with no.
    void answer(const QList<bool> &answers) { m_answers += answers; }
    //! What is called instead, when a question stands there, before it is answered.
    std::function<void(QWidget &question)> whileAsked;

    const Register &cashRegister() const { return till->cashRegister(); }
    QSharedPointer<const Receipt> receipt() const { return till->cashRegister().receipt(); }
    ReceiptModel &rows() const { return window->table().receipt(); }
    //! What is said of the position with that number.
    QString said(int posnum) const;
    QString told() const { return window->banner().text(); }
    //! The texts of the commands that were begun, and how each ended.
    QStringList commands() const;

    Notes notes;
    QList<QJsonObject> heard;
    const Subscription hearing;
    QStringList questions; //!< the texts of the questions that were asked
    std::unique_ptr<CashDesk> till;
    std::unique_ptr<TillWindow> window;

private:
    class Hands;
    void meet(QWidget &question);

    QList<bool> m_answers;
    std::unique_ptr<Hands> m_hands;
};

} // namespace till

#endif // TESTS_WINDOW_SUPPORT_WINDOWTEST_H
