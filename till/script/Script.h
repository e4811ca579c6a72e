#ifndef TILL_SCRIPT_SCRIPT_H
#define TILL_SCRIPT_SCRIPT_H

#include "till/script/CommandLine.h"

namespace till {

//! A file of commands, one a line.
class Script
{
public:
    //! Reads the file \a path, which is UTF-8.
    Result<> read(const QString &path);

    /*!
     * Carries the lines out until one does not end well, or all are done; notes each of them before
     * it begins, and the verdict. The place of a fault is
     * `FILE:LINE`; an answer or a question that is left over at the end is one too. Each line that
     * is carried out is told to \a echo first; expectations and comments are not.
     */
    Result<> play(CommandLine &commands,
                  const std::function<void(const QString &line)> &echo) const;

private:
    Result<> playLines(CommandLine &commands,
                       const std::function<void(const QString &line)> &echo) const;
    QString place(qsizetype line) const;

    QString m_path;
    QStringList m_lines;
};

} // namespace till

#endif // TILL_SCRIPT_SCRIPT_H
