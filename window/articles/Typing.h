#ifndef WINDOW_ARTICLES_TYPING_H
#define WINDOW_ARTICLES_TYPING_H

#include <QtCore/QObject>

#include <functional>

QT_BEGIN_NAMESPACE
class QKeyEvent;
class QWidget;
QT_END_NAMESPACE

namespace till {

/*!
 * What is typed in a window and its docks while no field for text has the focus: a scanner types
 * whatever has it. Lists would search with the letters, and take the Enter behind them for
 * themselves.
 *
 * Space is no text: it touches what has the focus.
 */
class Typing final : public QObject
{
public:
    //! \a window must outlive it. Dialogs in front of it are none of its docks.
    explicit Typing(QWidget &window);

    //! Told of each text.
    std::function<void(const QString &text)> typed;
    //! Told of the Enter that follows the text, where no field has the focus afterwards either.
    std::function<void()> entered;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isInside(const QWidget &widget) const;
    bool take(const QKeyEvent &key, bool isForAField);

    const QWidget &m_window;
    bool m_isTyping = false; //!< the last thing that was done here was to type text
};

} // namespace till

#endif // WINDOW_ARTICLES_TYPING_H
