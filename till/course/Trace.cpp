#include "till/course/Trace.h"

#include "till/course/JsonLine.h"

#include <cstdio>

namespace till {

Result<std::unique_ptr<Trace>> Trace::start(Notes &notes, const QString &path)
{
    std::unique_ptr<Trace> trace(new Trace);
    trace->m_file.setFileName(path);
    const bool opened = path == QLatin1String("-")
                            ? trace->m_file.open(stdout, QIODevice::WriteOnly)
                            : trace->m_file.open(QIODevice::WriteOnly | QIODevice::Truncate);
    if (!opened)
        return Fault{path, trace->m_file.errorString()};
    trace->m_subscription = notes.subscribe(
        [t = trace.get()](const QJsonObject &note) { t->write(note); }, Notes::Of::CourseAndStates);
    return trace;
}

void Trace::write(QJsonObject note)
{
    note.insert("line", ++m_lines);
    const QByteArray line = jsonLine(note);
    const bool isWritten = m_file.write(line) == line.size() && m_file.flush();
    if (!isWritten && m_error.isEmpty())
        m_error =
            (m_file.fileName().isEmpty() ? QStringLiteral("standard output") : m_file.fileName())
            + ": " + m_file.errorString();
}

} // namespace till
