#include "window/scripts/ScriptRecording.h"

#include "till/recorder/ScriptFile.h"

namespace till {

ScriptRecording::ScriptRecording(CashDesk &desk, Notes &notes)
    : m_desk(desk)
    , m_notes(notes)
    , m_course(notes, desk.isOn() ? desk.describeStart() : QJsonObject())
{
}

bool ScriptRecording::start(std::function<void()> added)
{
    if (m_desk.isBusy())
        return false;
    m_subscription.reset();
    m_lines.clear();
    m_isSaved = false;
    m_recorder.emplace([this, added = std::move(added)](const QString &line) {
        m_lines.append(line);
        m_isSaved = false;
        added();
    });
    tellStart();
    m_subscription = m_notes.subscribe([this](const QJsonObject &note) { m_recorder->read(note); },
                                       Notes::Of::CourseAndStates);
    return true;
}

void ScriptRecording::tellStart()
{
    if (!m_desk.isOn())
        return;
    const auto receipt = m_desk.cashRegister().receipt();
    const bool isUnfinishedOne = receipt && isUnfinished(receipt->state());
    if (isUnfinishedOne && !m_course.isEmpty())
        return m_course.tell(*m_recorder);
    QJsonObject start = m_desk.describeStart();
    start.insert("kind", "start");
    m_recorder->read(start);
    if (isUnfinishedOne) // it was opened in another till
        m_recorder->read({{"kind", "takeup"}, {"id", receipt->id()}});
}

bool ScriptRecording::stop()
{
    if (m_desk.isBusy() || !isOn())
        return false;
    m_subscription.reset();
    m_recorder->finish();
    return true;
}

Result<Message> ScriptRecording::save(const QString &path)
{
    if (const Result<> saved = saveScript(path, m_lines); !saved)
        return saved.error();
    m_isSaved = true;
    return m_recorder ? m_recorder->report(path) : Message();
}

} // namespace till
