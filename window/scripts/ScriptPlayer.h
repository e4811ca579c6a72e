#ifndef WINDOW_SCRIPTS_SCRIPTPLAYER_H
#define WINDOW_SCRIPTS_SCRIPTPLAYER_H

#include "till/script/Script.h"

#include <optional>

namespace till {

/*!
 * Plays a script on a register that is in use, line by line. Between two lines the register is the
 * cashier's; a question of a line is answered by the script alone, as when the program plays it.
 */
class ScriptPlayer
{
public:
    //! What the lines print, and the commands themselves behind "> ", goes to \a print. All must
    //! outlive this object.
    ScriptPlayer(CashDesk &desk, Notes &notes, const Translator &translator,
                 std::function<void(const QString &text)> print);
    Q_DISABLE_COPY_MOVE(ScriptPlayer)

    //! Reads the script \a path in place of the one before. With a fault nothing changes.
    Result<> open(const QString &path);
    void close();
    //! As after open(): the next step is the first line.
    void rewind();

    //! Carries the next line out, unless a command is under way or it has ended. True when it did.
    bool step();

    bool isOpen() const { return m_script.has_value(); }
    //! Whether at least one line is done, but not all, and none failed.
    bool isUnderWay() const { return m_play && next() > 0 && !m_play->hasEnded(); }
    bool hasEnded() const { return m_play && m_play->hasEnded(); }
    //! Only of one that is open.
    const Script &script() const { return *m_script; }
    //! The place of the line that comes next.
    qsizetype next() const { return m_play ? m_play->next() : 0; }
    //! Why it does not hold, once it has ended so.
    const std::optional<ScriptFault> &fault() const { return m_fault; }

private:
    CashDesk &m_desk;
    Notes &m_notes;
    const Translator &m_translator;
    const std::function<void(const QString &text)> m_print;
    std::optional<Script> m_script;
    std::optional<CommandLine> m_commands;
    std::optional<ScriptPlay> m_play;
    std::optional<ScriptFault> m_fault;
    bool m_isStepping = false;
};

} // namespace till

#endif // WINDOW_SCRIPTS_SCRIPTPLAYER_H
