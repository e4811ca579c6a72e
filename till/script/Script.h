#ifndef TILL_SCRIPT_SCRIPT_H
#define TILL_SCRIPT_SCRIPT_H

#include "till/script/CommandLine.h"
#include "till/script/ScriptLines.h"
#include "till/script/ScriptUpdate.h"

#include <optional>

namespace till {

//! Why a script did not hold, and of a line what it is about. All is plain text of one line.
struct ScriptFault : Fault
{
    QString command = {};  //!< the line; empty where it is about none
    QString expected = {}; //!< of the line
    QString found = {};
    bool isWrong = false; //!< the script itself is wrong, whatever the till does
};

//! A file of commands, one a line.
class Script
{
public:
    //! Is told each line that is carried out; expectations and comments are not.
    using Echo = std::function<void(const QString &line)>;

    //! Reads the script \a path, with what it includes, as `readScript()` does.
    Result<> read(const QString &path);

    /*!
     * Carries the lines out until one does not end well, or all are done; notes each of them before
     * it begins, and the verdict. The place of a fault is
     * `FILE:LINE`; an answer or a question that is left over at the end is one too. Each line that
     * is carried out is told to \a echo first. Where there is an \a update, an expectation for
     * which it has another that holds is no fault.
     */
    Result<void, ScriptFault> play(CommandLine &commands, const Echo &echo,
                                   ScriptUpdate *update = nullptr) const;

    //! All lines, comments too; at least one once it was read.
    const QList<ScriptLine> &lines() const { return m_lines; }
    QString path() const { return m_path; }

    //! How many of the lines expect something.
    qsizetype expectations() const;

    //! Whether one of them may save a receipt.
    bool maySave() const;

private:
    QString m_path;
    QList<ScriptLine> m_lines;
};

/*!
 * A script being carried out, a line at a time, as `Script::play()` does it at once. What happens
 * in between, other commands too, is the caller's.
 */
class ScriptPlay
{
public:
    //! All must outlive this object; \a script was read.
    ScriptPlay(const Script &script, CommandLine &commands, Script::Echo echo,
               ScriptUpdate *update = nullptr);
    Q_DISABLE_COPY_MOVE(ScriptPlay)

    //! The line that comes next, by its place in `Script::lines()`; behind the end, how many
    //! there are.
    qsizetype next() const { return m_next; }

    //! Whether it is over: all lines are done, or one did not end well.
    bool hasEnded() const { return m_hasEnded; }

    //! Carries the next line out; when it has ended nothing. The line that ends it also has what is
    //! wrong with the script as a whole, and its verdict is noted.
    Result<void, ScriptFault> step();

private:
    Result<void, ScriptFault> carryOut(const ScriptLine &line);
    //! \a line was carried out: which answers wait, and whose question had none?
    void lookForLoose(const ScriptLine &line);
    //! The fault that \a left is left over.
    ScriptFault faultOfLoose(const QString &left) const;

    const Script &m_script;
    CommandLine &m_commands;
    const Script::Echo m_echo;
    ScriptUpdate *const m_update;
    qsizetype m_next = 0;
    bool m_hasEnded = false;
    QList<ScriptLine> m_answering; // for each answer that waits
    std::optional<ScriptLine> m_asking;
};

} // namespace till

#endif // TILL_SCRIPT_SCRIPT_H
