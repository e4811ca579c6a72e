#include "till/register/Journal.h"

#include <QtCore/QJsonDocument>

namespace till {

Journal::Journal(Notes &notes)
    : m_subscription(notes.subscribe([this](const QJsonObject &note) { collect(note); }))
{
}

void Journal::collect(const QJsonObject &note)
{
    static const QStringList kept{"action", "trigger", "result", "question", "answer", "message"};
    const QString kind = note.value("kind").toString();
    if (kept.contains(kind))
        m_entries.append({note.value("depth").toInt(), kind,
                          QJsonDocument(note).toJson(QJsonDocument::Compact)});
}

} // namespace till
