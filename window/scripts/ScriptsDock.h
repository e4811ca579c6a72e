#ifndef WINDOW_SCRIPTS_SCRIPTSDOCK_H
#define WINDOW_SCRIPTS_SCRIPTSDOCK_H

#include "till/course/Notes.h"
#include "till/language/Translator.h"
#include "till/register/CashDesk.h"
#include "window/look/KeyDock.h"

QT_BEGIN_NAMESPACE
class QTabWidget;
QT_END_NAMESPACE

namespace till {

class ReceiptsPanel;
class ScriptPanel;

//! A dock with scripts, to be played and recorded, and past receipts, to be looked at. Its key is
//! F10.
class ScriptsDock final : public KeyDock
{
public:
    //! Both must outlive the dock.
    ScriptsDock(CashDesk &desk, Notes &notes, const Translator &translator,
                QWidget *parent = nullptr);

    //! Whether the window may close: no recording gets lost that somebody wants.
    bool mayClose();

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
