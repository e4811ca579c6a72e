#ifndef TILL_RECORDER_SCRIPTFILE_H
#define TILL_RECORDER_SCRIPTFILE_H

#include "till/result/Result.h"

#include <QtCore/QStringList>

namespace till {

//! Whether a recorded script may take the place of what is at \a path: nothing, or one that was
//! recorded to its end and not changed since.
Result<> checkRecorded(const QString &path);

//! Puts \a text in the place of what the file \a path has, whole or not at all.
Result<> replaceScript(const QString &path, const QByteArray &text);

//! Writes a recorded script of \a lines to \a path, whole or not at all, unless `checkRecorded()`
//! speaks against it or it is no regular file of its own.
Result<> saveScript(const QString &path, const QStringList &lines);

} // namespace till

#endif // TILL_RECORDER_SCRIPTFILE_H
