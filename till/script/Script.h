#ifndef TILL_SCRIPT_SCRIPT_H
#define TILL_SCRIPT_SCRIPT_H

#include "till/script/CommandLine.h"
#include "till/script/ScriptLines.h"
#include "till/script/ScriptUpdate.h"

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

    //! How many of the lines expect something.
    qsizetype expectations() const;

    //! Whether one of them may save a receipt.
    bool maySave() const;

private:
    Result<void, ScriptFault> playLines(CommandLine &commands, const Echo &echo,
                                        ScriptUpdate *update) const;

    QString m_path;
    QList<ScriptLine> m_lines;
};

} // namespace till

#endif // TILL_SCRIPT_SCRIPT_H
