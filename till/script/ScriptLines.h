#ifndef TILL_SCRIPT_SCRIPTLINES_H
#define TILL_SCRIPT_SCRIPTLINES_H

#include "till/result/Result.h"

#include <QtCore/QList>

namespace till {

//! A line of a script, and where it stands.
struct ScriptLine
{
    QString text;
    QString file;
    qsizetype number = 0; //!< in the file, from 1

    //! `FILE:LINE`.
    QString place() const { return QString("%1:%2").arg(file).arg(number); }
    //! Whether there is something to do.
    bool isCommand() const;
    //! Its first word, in small letters.
    QString command() const;
};

/*!
 * The lines of the script \a path, which is UTF-8; "-" is standard input. In the place of a line
 * `include FILE` are the lines of that file, named from the folder of the one that includes it.
 * What is wrong with an include is told at its place. There is at least one line.
 */
Result<QList<ScriptLine>> readScript(const QString &path);

} // namespace till

#endif // TILL_SCRIPT_SCRIPTLINES_H
