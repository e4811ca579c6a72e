#ifndef TILL_COURSE_TRACE_H
#define TILL_COURSE_TRACE_H

#include "till/course/Notes.h"
#include "till/result/Result.h"

#include <QtCore/QFile>

#include <memory>

namespace till {

//! Writes every note as one line of JSON, in order. Each line is numbered and written at
//! once. What is forked from this process goes on in the same file, with the same numbers.
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
    ~Trace();
    //! Whether all lines could be written so far; the fault is that of the first that could not.
    Result<> written() const;

private:
    //! What this process and those that are forked from it have in common.
    struct Shared
    {
        qint64 lines = 0;
        char fault[4096] = ""; //!< the reason; empty when there is none
    };

    explicit Trace(Shared &shared);
    void write(QJsonObject note);

    Shared *const m_shared;
    QFile m_file;
    Subscription m_subscription;
};

} // namespace till

#endif // TILL_COURSE_TRACE_H
