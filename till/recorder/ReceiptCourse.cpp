#include "till/recorder/ReceiptCourse.h"

#include <utility>

namespace till {

ReceiptCourse::ReceiptCourse(Notes &notes, QJsonObject start)
    : m_start(std::move(start))
    , m_subscription(notes.subscribe([this](const QJsonObject &note) { keep(note); },
                                     Notes::Of::CourseAndStates))
{
    m_start.insert("kind", "start");
}

void ReceiptCourse::tell(Recorder &recorder) const
{
    for (const QJsonObject &note : m_notes)
        recorder.read(note);
}

void ReceiptCourse::keep(const QJsonObject &note)
{
    const QString kind = note["kind"].toString();
    if (!Recorder::kinds().contains(kind))
        return;
    if (kind == "start")
        m_start = note;
    if (kind == "command")
        m_command = note;
    if (kind == "outcome")
        m_command = {};
    const auto opened = Recorder::openedBy(m_command["text"].toString());
    if (kind == "takeup" && opened && (*opened == Document::Sale || m_notes.isEmpty()))
        m_notes = {m_start, m_command};
    if (!m_notes.isEmpty())
        m_notes.append(note);
}

} // namespace till
