#ifndef TILL_RECORDER_SCRIPTFILE_H
#define TILL_RECORDER_SCRIPTFILE_H

#include "till/result/Result.h"

#include <QtCore/QStringList>

namespace till {

//! The first line of a recorded script, by which it is known for one.
QString recordedMark();

//! Puts \a text in the place of what the file \a path has, whole or not at all.
Result<> replaceScript(const QString &path, const QByteArray &text);

//! Writes a recorded script of \a lines to \a path, whole or not at all, unless something is there
//! already that is no recorded script.
Result<> saveScript(const QString &path, const QStringList &lines);

} // namespace till

#endif // TILL_RECORDER_SCRIPTFILE_H
