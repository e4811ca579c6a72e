#include "window/scripts/ScriptsDock.h"

#include "window/archive/ReceiptsPanel.h"
#include "window/look/ScrolledPage.h"
#include "window/scripts/ScriptPanel.h"

#include <QtWidgets/QTabWidget>

namespace till {

ScriptsDock::ScriptsDock(CashDesk &desk, Notes &notes, const Translator &translator,
                         QWidget *parent)
    : KeyDock(Qt::Key_F10, parent)
    , m_tabs(new QTabWidget)
    , m_scripts(new ScriptPanel(desk, notes, translator))
    , m_receipts(new ReceiptsPanel([&desk] { return desk.setup().database; }, translator))
{
    setObjectName("scripts");
    m_tabs->setObjectName("scriptsTabs");
    m_tabs->addTab(new ScrolledPage(m_scripts, leastOfDock), {});
    m_tabs->addTab(new ScrolledPage(m_receipts, leastOfDock), {});
    setWidget(m_tabs);
    tellTexts(translator);
}

bool ScriptsDock::mayClose()
{
    return m_scripts->mayDropRecording();
}

void ScriptsDock::translate(const Translator &translator)
{
    m_scripts->translate(translator);
    m_receipts->translate(translator);
    tellTexts(translator);
}

void ScriptsDock::tellTexts(const Translator &translator)
{
    setTitle(translator.text(told("till", "Scripts")));
    m_tabs->setTabText(0, translator.text(told("till", "Script")));
    m_tabs->setTabText(1, translator.text(told("till", "Past receipts")));
}

} // namespace till
