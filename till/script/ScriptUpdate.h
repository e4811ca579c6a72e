#ifndef TILL_SCRIPT_SCRIPTUPDATE_H
#define TILL_SCRIPT_SCRIPTUPDATE_H

#include "till/script/CommandLine.h"
#include "till/script/ScriptLines.h"

namespace till {

//! A line of a file that another takes the place of.
struct LineChange
{
    qsizetype number = 0; //!< in the file, from 1
    QString before;
    QString after;
};

//! \a changes of the file \a path, as `diff -U0` tells them; empty when there are none.
QString differenceOf(const QString &path, const QList<LineChange> &changes);

//! What tells whether the file \a path is as it was before; empty when it cannot be read.
QByteArray digestOf(const QString &path);

//! Makes \a changes in the file \a path, all of them or none. It must be as it was when \a digest
//! was taken.
Result<> rewrite(const QString &path, const QByteArray &digest, const QList<LineChange> &changes);

//! What was found, put in the place of what a script expects.
class ScriptUpdate
{
public:
    //! Of the expectations in the file \a path; what it includes may be others' too.
    explicit ScriptUpdate(const QString &path)
        : m_path(path)
    {
    }

    //! Whether another expectation, which holds, can stand for \a line, which ended so; notes it.
    bool mend(CommandLine &commands, const ScriptLine &line, const Outcome &outcome);

    //! What is noted.
    const QList<LineChange> &changes() const { return m_changes; }

private:
    QString m_path;
    QList<LineChange> m_changes;
};

} // namespace till

#endif // TILL_SCRIPT_SCRIPTUPDATE_H
