#ifndef TILL_COURSE_TRACE_H
#define TILL_COURSE_TRACE_H

#include "till/course/Notes.h"

#include <QtCore/QFile>

#include <memory>

namespace till {

//! Writes every note as one line of JSON, in order. Each line is numbered and flushed.
class Trace
{
public:
    /*!
     * Starts tracing \a notes to the file \a path, which is emptied first, or to standard output
     * for "-". Null and \a error set when the file cannot be written. \a notes must outlive the
     * trace.
     */
    static std::unique_ptr<Trace> start(Notes &notes, const QString &path, QString *error);
    ~Trace();

    //! Why a line could not be written, with the path; empty as long as all were.
    QString error() const { return m_error; }

    Q_DISABLE_COPY_MOVE(Trace)

private:
    explicit Trace(Notes &notes);
    void write(QJsonObject note);

    Notes &m_notes;
    QFile m_file;
    QString m_error;
    qint64 m_lines = 0;
};

} // namespace till

#endif // TILL_COURSE_TRACE_H
