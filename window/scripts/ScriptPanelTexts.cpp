// What the panel says, and which of its buttons can be pressed.

#include "window/scripts/ScriptPanel.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>

namespace till {

void ScriptPanel::tellTexts()
{
    m_open->setText(m_translator.text(told("till", "Open…")));
    m_step->setText(m_translator.text(told("till", "Step")));
    m_runToLine->setText(m_translator.text(told("till", "Run to the line")));
    m_rewind->setText(m_translator.text(told("till", "To the beginning")));
    m_save->setText(m_translator.text(told("till", "Save…")));
    m_lines->setAccessibleName(m_translator.text(told("till", "The lines of the script")));
    m_printed->setAccessibleName(m_translator.text(told("till", "What the script printed")));
    tellState();
}

void ScriptPanel::allow(QPushButton *button, const Message &what, const Message &whyNot)
{
    const QString text = m_translator.text(whyNot);
    button->setEnabled(text.isEmpty());
    button->setToolTip(text.isEmpty() ? m_translator.text(what) : text);
}

void ScriptPanel::tellState()
{
    const bool isRunning = m_timer.isActive();
    const Message recording =
        m_recording.isOn() ? told("till", "A recording is under way: stop it") : Message();
    const Message running =
        isRunning ? told("till", "The script is running: let it pause") : Message();
    const Message idle = m_recording.isOn() ? recording : running;
    const Message closed = m_player.isOpen() ? Message() : told("till", "Open a script first");
    const Message behind = m_lines->currentIndex().row() > m_player.next() && !m_player.hasEnded()
                               ? Message()
                               : told("till", "Select a line that is still to come");
    const auto first = [](const QList<Message> &reasons) {
        for (const Message &reason : reasons) {
            if (reason != Message())
                return reason;
        }
        return Message();
    };
    m_run->setText(m_translator.text(isRunning ? told("till", "Pause") : told("till", "Run")));
    m_record->setText(m_translator.text(m_recording.isOn() ? told("till", "Stop recording")
                                                           : told("till", "Record")));
    allow(m_open, told("till", "Open a script of the till's commands"), idle);
    allow(m_run, told("till", "Play the script on this register; again, once it has ended"),
          first({recording, closed}));
    allow(m_step, told("till", "Carry out the next line"), first({idle, closed}));
    allow(m_runToLine, told("till", "Play up to the selected line, which comes next then"),
          first({idle, closed, behind}));
    allow(m_rewind, told("till", "Begin with the first line again"), first({idle, closed}));
    allow(m_record, told("till", "Keep what is done from now on as a script"), running);
    allow(m_save, told("till", "Write what was recorded to a file"),
          first({recording, m_recording.lines().isEmpty() ? told("till", "Nothing was recorded yet")
                                                          : Message()}));
    m_status->setText(status());
}

QString ScriptPanel::status() const
{
    if (m_recording.isOn())
        return m_translator.text(told("till", "Recording: %1 lines")
                                     .with({QString::number(m_recording.lines().size())}));
    if (!m_told.isEmpty())
        return m_told;
    if (!m_player.isOpen())
        return m_translator.text(told("till", "No script is open."));
    const QString name = QFileInfo(m_player.script().path()).fileName();
    if (m_player.fault())
        return m_translator.text(
            told("till", "script %1 does not hold: %2").with({name, m_player.fault()->text()}));
    if (m_player.hasEnded())
        return m_translator.text(told("till", "script %1 holds").with({name}));
    return m_translator.text(told("till", "%1: %2 of %3 lines")
                                 .with({name, QString::number(m_player.next()),
                                        QString::number(m_player.script().lines().size())}));
}

} // namespace till
