#include "till/course/Trace.h"

#include "till/course/JsonLine.h"
#include "till/result/WriteAll.h"

#include <cerrno>
#include <cstring>
#include <new>

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace till {

Result<std::unique_ptr<Trace>> Trace::start(Notes &notes, const QString &path)
{
    void *const memory =
        mmap(nullptr, sizeof(Shared), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        return Fault{path, QString::fromLocal8Bit(strerror(errno))};
    std::unique_ptr<Trace> trace(new Trace(*new (memory) Shared));
    trace->m_file.setFileName(path);
    const auto mode = QIODevice::WriteOnly | QIODevice::Unbuffered;
    // Standard output itself is another file in a process that plays a script.
    const bool opened = path == QLatin1String("-")
                            ? trace->m_file.open(fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0), mode,
                                                 QFileDevice::AutoCloseHandle)
                            : trace->m_file.open(mode | QIODevice::Truncate);
    if (!opened)
        return Fault{path, trace->m_file.errorString()};
    trace->m_subscription = notes.subscribe(
        [t = trace.get()](const QJsonObject &note) { t->write(note); }, Notes::Of::CourseAndStates);
    return trace;
}

Trace::Trace(Shared &shared)
    : m_shared(&shared)
{
}

Trace::~Trace()
{
    munmap(m_shared, sizeof(Shared));
}

void Trace::write(QJsonObject note)
{
    note.insert("line", ++m_shared->lines);
    const QByteArray line = jsonLine(note);
    const Result<> written = writeAll(m_file, line);
    if (!written && m_shared->fault[0] == '\0')
        qstrncpy(m_shared->fault, written.error().reason.toUtf8().constData(),
                 sizeof(m_shared->fault));
}

Result<> Trace::written() const
{
    if (m_shared->fault[0] == '\0')
        return {};
    const QString file = m_file.fileName();
    return Fault{file.isEmpty() ? QStringLiteral("standard output") : file,
                 QString::fromUtf8(m_shared->fault)};
}

} // namespace till
