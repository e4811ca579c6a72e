#ifndef TILL_COURSE_TRACE_H
#define TILL_COURSE_TRACE_H

#include "till/course/Notes.h"
#include "till/result/Result.h"

#include <QtCore/QFile>

#include <memory>

namespace till {

//! Writes every note as one line of JSON, in order. Each line is numbered and written at
//! once.
class Trace
{
public:
    Q_DISABLE_COPY_MOVE(Trace)

    /*!
     * Starts tracing \a notes to the file \a path, which is emptied first, or to standard output
     * for "-". Any number of traces can be on at a time; one that starts in the middle of a
     * receipt has all of it from the next take-up on.
     */
    static Result<std::unique_ptr<Trace>> start(Notes &notes, const QString &path);
    //! Why a line could not be written, with the path; empty as long as all were.
    QString error() const { return m_error; }

private:
    Trace() = default;
    void write(QJsonObject note);

    QFile m_file;
    QString m_error;
    qint64 m_lines = 0;
    Subscription m_subscription;
};

} // namespace till

#endif // TILL_COURSE_TRACE_H
