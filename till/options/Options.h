#ifndef TILL_OPTIONS_OPTIONS_H
#define TILL_OPTIONS_OPTIONS_H

#include "till/options/LookupOptions.h"
#include "till/startup/SetupOptions.h"
#include "till/view/ReceiptView.h"

#include <QtCore/QCommandLineOption>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

class QCommandLineParser;

namespace till {

//! What the command line says.
struct Options
{
    Setup setup;
    Style style;
    QString language;
    QString trace;
    QString record;    //!< the file that is written as a script
    QString mode;      //!< a command of the program's own; empty to open the register
    QStringList words; //!< that follow it; of a play, its scripts
    QMap<QString, QString> scriptFaults; //!< why some of these cannot be read
    bool ownDatabase = false;            //!< --db was given: scripts play on it too
    bool quiet = false;
    int jobs = 0;    //!< how many scripts are played at a time; 0 for as many as there are cores
    int timeout = 0; //!< seconds that the play of a script may take
    QString junit;   //!< the file that is told as JUnit XML what became of a play
    bool update = false; //!< a play rewrites what its scripts expect
    bool tap = false;    //!< a play is told as TAP
    bool stop = false;   //!< a play ends at the first script that does not hold
    LookupOptions lookup;

    //! Whether standard output is for a program alone.
    bool isSilent() const { return tap || trace == "-"; }

    //! Whether scripts cannot be played at the same time.
    bool playsInTurn() const
    {
        return !trace.isEmpty() || (ownDatabase && setup.database != ":memory:");
    }
};

//! What was typed on terminals, beside the default database.
QString historyFile();

//! The files that a run with \a options reads or writes, but for its trace.
QStringList filesInUse(const Options &options);

//! A way to start the program, for a person.
struct ProgramMode
{
    QString usage;
    QString help;
};

QList<ProgramMode> programModes();
QList<QCommandLineOption> programOptions();
//! What the exit statuses mean, from 0.
QStringList exitStatuses();

//! Tells \a parser the options and the help.
void describeOptions(QCommandLineParser &parser);

//! Fills \a options from the command line, unless something is wrong with it.
Result<> readOptions(const QCommandLineParser &parser, Options &options);

} // namespace till

#endif // TILL_OPTIONS_OPTIONS_H
