#ifndef TILL_SCRIPT_SCRIPTUPDATE_H
#define TILL_SCRIPT_SCRIPTUPDATE_H

#include "till/script/CommandLine.h"
#include "till/script/ScriptLines.h"

namespace till {

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

    //! What is noted, as `diff -U0` tells it; empty when nothing is.
    QString difference() const;

    //! Writes what is noted to the file: all of it, or nothing.
    Result<> write() const;

private:
    struct Change
    {
        ScriptLine line;
        QString text;
    };

    QString m_path;
    QList<Change> m_changes;
};

} // namespace till

#endif // TILL_SCRIPT_SCRIPTUPDATE_H
