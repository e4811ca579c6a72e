#ifndef TILL_VERDICTS_VERDICT_H
#define TILL_VERDICTS_VERDICT_H

#include "till/script/Script.h"

#include <QtCore/QJsonObject>

namespace till {

//! How the play of a script ended.
struct Verdict
{
    //! From good to bad.
    enum End {
        Held,
        Failed,      //!< a command or an expectation did not end well, or the till crashed or hung
        Interrupted, //!< somebody ended the play
        Wrong,       //!< the script itself is: it cannot be read, or not played as it stands
        NotStarted,  //!< the till did not start; it would for no script
    };

    QString script; //!< as it was named
    End end = Held;
    ScriptFault fault = {}; //!< of what did not hold
    qsizetype expectations = 0;
    QList<LineChange> changes = {}; //!< that an update is to make
    QByteArray digest = {};         //!< of the file in which it makes them
    // Of a play in a process of its own:
    bool isCutOff = false; //!< the process ended before the script
    double seconds = 0;
    QString course = {};     //!< what it printed
    QString complaints = {}; //!< what came on its standard error
};

//! All but script and what is of a process, and back.
QJsonObject toJson(const Verdict &verdict);
Verdict verdictFrom(const QJsonObject &json);

} // namespace till

#endif // TILL_VERDICTS_VERDICT_H
