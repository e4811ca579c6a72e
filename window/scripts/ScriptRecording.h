#ifndef WINDOW_SCRIPTS_SCRIPTRECORDING_H
#define WINDOW_SCRIPTS_SCRIPTRECORDING_H

#include "till/recorder/ReceiptCourse.h"
#include "till/register/CashDesk.h"

#include <optional>

namespace till {

/*!
 * Keeps what is done with a register as a script, from some moment on. When a receipt is open then,
 * the script begins with what was done to it before, so that it can be played.
 */
class ScriptRecording
{
public:
    //! Both must outlive this object.
    ScriptRecording(CashDesk &desk, Notes &notes);
    Q_DISABLE_COPY_MOVE(ScriptRecording)

    //! Begins anew, and tells \a added each line that it comes to. False while a command is under
    //! way: then nothing happens.
    bool start(std::function<void()> added);
    //! Ends it with all that the receipt came to. False as above.
    bool stop();
    bool isOn() const { return m_subscription != nullptr; }

    const QStringList &lines() const { return m_lines; }
    //! Whether there are lines that were not saved.
    bool isUnsaved() const { return !m_isSaved && !m_lines.isEmpty(); }
    //! Writes the lines to \a path, unless something is there that is no recorded script; what
    //! there is to tell of it.
    Result<Message> save(const QString &path);

private:
    //! Tells the recorder how the register stands.
    void tellStart();

    CashDesk &m_desk;
    Notes &m_notes;
    ReceiptCourse m_course;
    QStringList m_lines;
    bool m_isSaved = false;
    std::optional<Recorder> m_recorder;
    Subscription m_subscription;
};

} // namespace till

#endif // WINDOW_SCRIPTS_SCRIPTRECORDING_H
