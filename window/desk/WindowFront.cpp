#include "window/desk/WindowFront.h"

#include "window/dialogs/QuestionDialog.h"

#include <QtGui/QGuiApplication>

namespace till {

bool WindowFront::ask(const Question &question)
{
    QuestionDialog dialog(m_translator, question, m_about, &m_window);
    // The till waits for the cashier now, not the cashier for the till.
    const bool isAtWork = QGuiApplication::overrideCursor() != nullptr;
    if (isAtWork)
        QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
    const QString work = m_strip.work();
    m_strip.showWork({});
    const bool isConfirmed = dialog.exec() == QDialog::Accepted;
    m_strip.showWork(work);
    if (isAtWork)
        QGuiApplication::restoreOverrideCursor();
    return isConfirmed;
}

void WindowFront::show(const tr::Tr &message)
{
    m_strip.banner().tell(Message{message, {}}, Banner::Tone::Warning);
}

} // namespace till
