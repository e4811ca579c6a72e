#include "till/course/Trace.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QRegularExpression>

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

namespace {

//! \a line with U+007F to U+009F escaped, which JSON lets stand and terminals obey.
QByteArray withoutControls(const QByteArray &line)
{
    static const QRegularExpression controls(QStringLiteral("[\\x{7f}-\\x{9f}]"));
    QString text = QString::fromUtf8(line);
    if (!text.contains(controls))
        return line;
    for (char16_t sign = 0x7f; sign <= 0x9f; ++sign)
        text.replace(QChar(sign), QStringLiteral("\\u00%1").arg(int(sign), 2, 16));
    return text.toUtf8();
}

} // namespace

void Trace::write(QJsonObject note)
{
    note.insert("line", ++m_lines);
    const QByteArray line =
        withoutControls(QJsonDocument(note).toJson(QJsonDocument::Compact)).append('\n');
    const bool isWritten = m_file.write(line) == line.size() && m_file.flush();
    if (!isWritten && m_error.isEmpty())
        m_error =
            (m_file.fileName().isEmpty() ? QStringLiteral("standard output") : m_file.fileName())
            + ": " + m_file.errorString();
}

} // namespace till
