#ifndef TILL_RUNNER_SCRIPTFILES_H
#define TILL_RUNNER_SCRIPTFILES_H

#include "till/result/Result.h"

#include <QtCore/QMap>
#include <QtCore/QStringList>

namespace till {

//! The scripts that are to be played.
struct ScriptFiles
{
    QStringList scripts;
    //! Why some of them, and folders that stand among them, cannot be read.
    QMap<QString, QString> faults;
};

/*!
 * The scripts that \a paths name, in their order: a folder stands for all `*.till` below it, sorted
 * by path, but for what is hidden; anything else for itself, whether it is there or not. Links to
 * folders are followed; a folder that is met twice is looked through once. A folder without any
 * script is a fault.
 */
Result<ScriptFiles> scriptsAt(const QStringList &paths);

} // namespace till

#endif // TILL_RUNNER_SCRIPTFILES_H
