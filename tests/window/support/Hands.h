#ifndef TESTS_WINDOW_SUPPORT_HANDS_H
#define TESTS_WINDOW_SUPPORT_HANDS_H

#include "tests/support/Patience.h"
#include "tests/window/support/PartOf.h"
#include "window/desk/TillWindow.h"
#include "window/receipt/ReceiptTable.h"
#include "window/shelf/Shelf.h"

#include <QtTest/QTest>
#include <QtWidgets/QLineEdit>

#include <memory>

namespace till {

/*!
 * Hands that click and type in a window of the till. They do nothing that a cashier could not do;
 * where something is not there to be clicked at they throw.
 */
class Hands
{
public:
    Hands();
    ~Hands();
    Q_DISABLE_COPY_MOVE(Hands)

    //! The widget of that name, which must be there, in the window or in the dialog on top of it.
    template <typename Widget = QWidget>
    Widget &find(const QString &name) const
    {
        return partOf<Widget>(top(), name);
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
    //! Does what \a command is.
    void carryOut(const Command &command);

    ReceiptModel &rows() const { return window->table().receipt(); }

    //! What is called when the next question stands there, before it is answered.
    std::function<void(QWidget &question)> whileAsked;
    QStringList questions; //!< the texts of the questions that were asked
    std::unique_ptr<TillWindow> window;

private:
    class Watch;
    void meet(QWidget &question);
    void enterAt(const QString &button, const QString &text);

    QList<bool> m_answers;
    std::unique_ptr<Watch> m_watch;
};

} // namespace till

#endif // TESTS_WINDOW_SUPPORT_HANDS_H
