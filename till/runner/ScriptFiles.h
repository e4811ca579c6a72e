#ifndef TILL_RUNNER_SCRIPTFILES_H
#define TILL_RUNNER_SCRIPTFILES_H

#include "till/result/Result.h"

#include <QtCore/QStringList>

namespace till {

/*!
 * The scripts that \a paths name, in their order: a folder stands for all `*.till` below it, sorted
 * by path; anything else for itself, whether it is there or not. A folder without any is a fault.
 */
Result<QStringList> scriptsAt(const QStringList &paths);

} // namespace till

#endif // TILL_RUNNER_SCRIPTFILES_H
