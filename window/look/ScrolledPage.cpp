#include "window/look/ScrolledPage.h"

#include <QtCore/QEvent>
#include <QtGui/QKeyEvent>

namespace till {

ScrolledPage::ScrolledPage(QWidget *page, QSize least, QWidget *parent)
    : QScrollArea(parent)
    , m_least(least)
{
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(page);
    setFocusProxy(page->focusProxy());
    page->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
}

QSize ScrolledPage::sizeHint() const
{
    return widget()->sizeHint();
}

QSize ScrolledPage::minimumSizeHint() const
{
    return widget()->minimumSizeHint().boundedTo(m_least);
}

bool ScrolledPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

//! The keys that scroll mean something else to what is around.
void ScrolledPage::keyPressEvent(QKeyEvent *event)
{
    event->ignore();
}

} // namespace till
