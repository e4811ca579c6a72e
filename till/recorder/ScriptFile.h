#ifndef TILL_RECORDER_SCRIPTFILE_H
#define TILL_RECORDER_SCRIPTFILE_H

#include "till/result/Result.h"

#include <QtCore/QByteArray>
#include <QtCore/QCryptographicHash>
#include <QtCore/QStringList>

#include <functional>

namespace till {

//! The lines of a script that is recorded, between one that says so and one with a sum of them all,
//! by which it is known whether somebody has changed it since.
class RecordedText
{
public:
    using Write = std::function<void(const QString &line)>;

    //! Gives \a write the first line.
    explicit RecordedText(Write write);
    Q_DISABLE_COPY_MOVE(RecordedText)

    void add(const QString &line);
    //! Gives the last line.
    void end();

    //! The first line.
    static QString mark();
    //! Whether \a text is a script that was recorded to its end, and not changed since.
    static bool isUnchanged(const QByteArray &text);

private:
    Write m_write;
    QCryptographicHash m_sum{QCryptographicHash::Sha256};
};

//! Whether a standard stream of this process leads to the file \a path.
bool isStandardStream(const QString &path);

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
