#include "till/recorder/Recording.h"

#include "till/result/WriteAll.h"

namespace till {

Result<std::unique_ptr<Recording>> Recording::start(Notes &notes, const QString &path)
{
    std::unique_ptr<Recording> recording(new Recording(path));
    const auto mode = QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered;
    if (!recording->m_file.open(mode))
        return Fault{path, recording->m_file.errorString()};
    recording->m_text.emplace([r = recording.get()](const QString &line) { r->write(line); });
    recording->m_subscription = notes.subscribe(
        [r = recording.get()](const QJsonObject &note) { r->m_recorder.read(note); },
        Notes::Of::CourseAndStates);
    return recording;
}

Recording::Recording(const QString &path)
    : m_file(path)
    , m_recorder([this](const QString &line) { m_text->add(line); })
{
}

Result<> Recording::finish()
{
    m_subscription.reset();
    m_recorder.finish();
    m_text->end();
    return m_written;
}

void Recording::write(const QString &line)
{
    const Result<> written = writeAll(m_file, line.toUtf8() + '\n');
    if (m_written)
        m_written = written;
}

} // namespace till
