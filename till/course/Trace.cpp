#include "till/course/Trace.h"

#include "till/course/JsonLine.h"
#include "till/result/WriteAll.h"

#include <unistd.h>

namespace till {

Result<std::unique_ptr<Trace>> Trace::start(Notes &notes, const QString &path)
{
    std::unique_ptr<Trace> trace(new Trace);
    trace->m_file.setFileName(path);
    const auto mode = QIODevice::WriteOnly | QIODevice::Unbuffered;
    const bool opened = path == QLatin1String("-") ? trace->m_file.open(STDOUT_FILENO, mode)
                                                   : trace->m_file.open(mode | QIODevice::Truncate);
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
    if (!writeAll(m_file, line) && m_error.isEmpty())
        m_error =
            (m_file.fileName().isEmpty() ? QStringLiteral("standard output") : m_file.fileName())
            + ": " + m_file.errorString();
}

} // namespace till
