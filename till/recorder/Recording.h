#ifndef TILL_RECORDER_RECORDING_H
#define TILL_RECORDER_RECORDING_H

#include "till/course/Notes.h"
#include "till/recorder/Recorder.h"
#include "till/recorder/ScriptFile.h"
#include "till/result/Result.h"

#include <QtCore/QFile>

#include <memory>
#include <optional>

namespace till {

//! Writes what a till does as a script, command by command; what was written is there whatever
//! comes.
class Recording
{
public:
    Q_DISABLE_COPY_MOVE(Recording)

    //! Starts recording what \a notes tell, from the start of the till on, in the file \a path,
    //! which is emptied first.
    static Result<std::unique_ptr<Recording>> start(Notes &notes, const QString &path);

    //! Ends the script. The fault is the first line that could not be written: the till has gone on
    //! all the same.
    Result<> finish();

    const Recorder &recorder() const { return m_recorder; }

private:
    explicit Recording(const QString &path);
    void write(const QString &line);

    QFile m_file;
    Result<> m_written;
    std::optional<RecordedText> m_text; //!< once the file is open
    Recorder m_recorder;
    Subscription m_subscription;
};

} // namespace till

#endif // TILL_RECORDER_RECORDING_H
