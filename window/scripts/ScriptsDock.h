#ifndef WINDOW_SCRIPTS_SCRIPTSDOCK_H
#define WINDOW_SCRIPTS_SCRIPTSDOCK_H

#include "till/course/Notes.h"
#include "till/language/Translator.h"
#include "till/register/CashDesk.h"

#include <QtWidgets/QDockWidget>

QT_BEGIN_NAMESPACE
class QTabWidget;
QT_END_NAMESPACE

namespace till {

class ReceiptsPanel;
class ScriptPanel;

//! A dock with scripts, to be played and recorded, and past receipts, to be looked at. F10, the key
//! of its `toggleViewAction()`, shows and hides it.
class ScriptsDock final : public QDockWidget
{
public:
    //! Both must outlive the dock.
    ScriptsDock(CashDesk &desk, Notes &notes, const Translator &translator,
                QWidget *parent = nullptr);

    void translate(const Translator &translator);

    ScriptPanel &scripts() { return *m_scripts; }

private:
    void tellTexts(const Translator &translator);

    QTabWidget *const m_tabs;
    ScriptPanel *const m_scripts;
    ReceiptsPanel *const m_receipts;
};

} // namespace till

#endif // WINDOW_SCRIPTS_SCRIPTSDOCK_H
