#ifndef TILL_CONSOLE_TRACEFILE_H
#define TILL_CONSOLE_TRACEFILE_H

#include <QtCore/QStringList>

namespace till {

//! Why a trace must not be written to \a path: it is one of the files \a inUse, by whatever name,
//! or a file that is no trace. Empty when it may, also when nothing is there yet.
QString traceFileFault(const QString &path, const QStringList &inUse);

} // namespace till

#endif // TILL_CONSOLE_TRACEFILE_H
