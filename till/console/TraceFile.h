#ifndef TILL_CONSOLE_TRACEFILE_H
#define TILL_CONSOLE_TRACEFILE_H

#include "till/result/Result.h"

#include <QtCore/QStringList>

namespace till {

//! Whether a trace may be written to \a path: not to one of the files \a inUse, by whatever name,
//! nor to a file that is no trace. It may when nothing is there yet.
Result<> checkTraceFile(const QString &path, const QStringList &inUse);

//! The same of what became of a play.
Result<> checkJunitFile(const QString &path, const QStringList &inUse);

//! The same of what is done at the register.
Result<> checkRecordFile(const QString &path, const QStringList &inUse);

} // namespace till

#endif // TILL_CONSOLE_TRACEFILE_H
