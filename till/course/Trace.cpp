#include "till/course/Trace.h"

#include <QtCore/QJsonDocument>

#include <cstdio>

namespace till {

Trace::Trace(Notes &notes)
    : m_notes(notes)
{
}

std::unique_ptr<Trace> Trace::start(Notes &notes, const QString &path, QString *error)
{
    std::unique_ptr<Trace> trace(new Trace(notes));
    trace->m_file.setFileName(path);
    const bool opened = path == QLatin1String("-")
                            ? trace->m_file.open(stdout, QIODevice::WriteOnly)
                            : trace->m_file.open(QIODevice::WriteOnly | QIODevice::Truncate);
    if (!opened) {
        *error = path + ": " + trace->m_file.errorString();
        return nullptr;
    }
    notes.setWantsStates(true);
    notes.listen(trace.get(), [t = trace.get()](const QJsonObject &note) { t->write(note); });
    return trace;
}

Trace::~Trace()
{
    m_notes.setWantsStates(false);
    m_notes.forget(this);
}

void Trace::write(QJsonObject note)
{
    note.insert("line", ++m_lines);
    const QByteArray line = QJsonDocument(note).toJson(QJsonDocument::Compact).append('\n');
    const bool isWritten = m_file.write(line) == line.size() && m_file.flush();
    if (!isWritten && m_error.isEmpty())
        m_error =
            (m_file.fileName().isEmpty() ? QStringLiteral("standard output") : m_file.fileName())
            + ": " + m_file.errorString();
}

} // namespace till
