#include "till/recorder/Recording.h"

#include "till/recorder/ScriptFile.h"

namespace till {

Result<std::unique_ptr<Recording>> Recording::start(Notes &notes, const QString &path)
{
    std::unique_ptr<Recording> recording(new Recording(path));
    if (!recording->m_file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return Fault{path, recording->m_file.errorString()};
    recording->write(recordedMark());
    recording->m_subscription = notes.subscribe(
        [r = recording.get()](const QJsonObject &note) { r->m_recorder.read(note); },
        Notes::Of::CourseAndStates);
    return recording;
}

Recording::Recording(const QString &path)
    : m_file(path)
    , m_recorder([this](const QString &line) { write(line); })
{
}

void Recording::finish()
{
    m_subscription.reset();
    m_recorder.finish();
}

void Recording::write(const QString &line)
{
    const QByteArray bytes = line.toUtf8() + '\n';
    const bool isWritten = m_file.write(bytes) == bytes.size() && m_file.flush();
    if (!isWritten && m_error.isEmpty())
        m_error = m_file.fileName() + ": " + m_file.errorString();
}

} // namespace till
