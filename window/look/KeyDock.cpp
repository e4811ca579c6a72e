#include "window/look/KeyDock.h"

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
    setWindowTitle(title);
    m_show.setText(title);
}

void KeyDock::showOrHide()
{
    if (isVisible() && !visibleRegion().isEmpty())
        return hide();
    show();
    raise();
    widget()->setFocus();
}

} // namespace till
