#include "window/look/KeyDock.h"

#include <QtWidgets/QMainWindow>

#include <utility>

namespace till {

KeyDock::KeyDock(const QKeySequence &key, QWidget *parent)
    : QDockWidget(parent)
{
    m_show.setShortcut(key);
    m_show.setCheckable(true);
    connect(&m_show, &QAction::triggered, this, [this] { showOrHide(); });
    connect(this, &QDockWidget::visibilityChanged, &m_show, &QAction::setChecked);
}

void KeyDock::setTitle(const QString &title)
{
    setWindowTitle(title + QStringLiteral(" (")
                   + m_show.shortcut().toString(QKeySequence::NativeText) + u')');
    m_show.setText(title);
}

void KeyDock::showOrHide()
{
    if (isVisible() && !visibleRegion().isEmpty())
        return hide();
    show();
    raise();
    auto *const window = qobject_cast<QMainWindow *>(parentWidget());
    if (window && !std::exchange(m_wasShown, true)) {
        constexpr double share = 0.36; // of the window, from the first time it is seen
        window->resizeDocks({this}, {static_cast<int>(window->width() * share)}, Qt::Horizontal);
    }
    widget()->setFocus();
}

} // namespace till
