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
    if (kind == QLatin1String("command"))
        m_command = note;
    if (!kept.contains(kind))
        return;
    // What the register itself says, of no action, is kept behind the command that it is about.
    const bool isOfRegister =
        note.value("depth").toInt() == 1
        && (kind == QLatin1String("question") || kind == QLatin1String("message"));
    if (isOfRegister && !m_command.isEmpty())
        keep(std::exchange(m_command, {}));
    keep(note);
}

void Journal::keep(const QJsonObject &note)
{
    m_entries.append({note.value("depth").toInt(), note.value("kind").toString(),
                      QJsonDocument(note).toJson(QJsonDocument::Compact)});
}

} // namespace till
