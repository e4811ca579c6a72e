#include "window/articles/Typing.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QLineEdit>

#include <utility>

namespace till {

namespace {

bool isText(const QKeyEvent &key)
{
    const QString text = key.text();
    const Qt::KeyboardModifiers held = key.modifiers();
    // Both together are the key that chooses a third sign of a key.
    const bool isCommand = held.testFlag(Qt::ControlModifier) != held.testFlag(Qt::AltModifier)
                           || held.testFlag(Qt::MetaModifier);
    return !text.isEmpty() && text[0].isPrint() && text != QLatin1String(" ") && !isCommand;
}

bool isEnter(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

} // namespace

Typing::Typing(QWidget &window)
    : typed([](const QString &) {})
    , entered([] {})
    , m_window(window)
{
    qApp->installEventFilter(this);
}

bool Typing::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress)
        m_isTyping = false;
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType()
        || !isInside(static_cast<const QWidget &>(*watched)))
        return false;
    // A dock that floats keeps a focus of its own.
    const QWidget *const focused = static_cast<const QWidget *>(watched)->window()->focusWidget();
    return take(static_cast<const QKeyEvent &>(*event), qobject_cast<const QLineEdit *>(focused));
}

bool Typing::isInside(const QWidget &widget) const
{
    const QWidget *const top = widget.window();
    return top == &m_window
           || (qobject_cast<const QDockWidget *>(top) && top->parentWidget() == &m_window);
}

bool Typing::take(const QKeyEvent &key, bool isForAField)
{
    const bool wasTyping = std::exchange(m_isTyping, false);
    if (isForAField)
        return false;
    if (isText(key)) {
        m_isTyping = true;
        typed(key.text());
        return true;
    }
    if (!wasTyping || !isEnter(key))
        return false;
    entered();
    return true;
}

} // namespace till
