#include "till/register/Journal.h"

#include <QtCore/QJsonDocument>

namespace till {

Journal::Journal(Notes &notes)
    : m_notes(notes)
{
    m_notes.listen(this, [this](const QJsonObject &note) { collect(note); });
}

Journal::~Journal()
{
    m_notes.forget(this);
}

void Journal::collect(const QJsonObject &note)
{
    static const QStringList kept{"action", "trigger", "result", "question", "answer", "message"};
    const QString kind = note.value("kind").toString();
    if (kept.contains(kind))
        m_entries.append(
            {m_notes.depth(), kind, QJsonDocument(note).toJson(QJsonDocument::Compact)});
}

} // namespace till
