#include "till/runner/Child.h"

#include <QtCore/QFile>
#include <QtCore/QJsonDocument>

#include <csignal>
#include <cstdlib>
#include <cstring>

#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace till {

namespace {

QString signalName(int number)
{
    const char *const name = sigabbrev_np(number);
    return name ? QStringLiteral("SIG") + name : "signal " + QString::number(number);
}

} // namespace

MemoryFile::MemoryFile()
    : m_handle(memfd_create("till", MFD_CLOEXEC))
{
}

MemoryFile::~MemoryFile()
{
    close(m_handle);
}

QByteArray MemoryFile::contents() const
{
    QFile file;
    const bool isOpen = file.open(m_handle, QIODevice::ReadOnly) && file.seek(0);
    return isOpen ? file.readAll() : QByteArray();
}

Child::Child(const QString &script, const Apart &apart)
    : m_script(script)
    , m_timeout(apart.timeout)
{
    m_process = fork();
    if (m_process == 0)
        play(apart);
}

Child::~Child()
{
    if (m_process > 0) {
        ::kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }
}

void Child::play(const Apart &apart) const
{
    prctl(PR_SET_PDEATHSIG, SIGKILL); // nobody would end it where it hangs
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    dup2(m_course.handle(), STDOUT_FILENO);
    dup2(m_complaints.handle(), STDERR_FILENO);
    write(apart.play(m_script, [this](const Verdict &soFar) { write(soFar, false); }), true);
    std::exit(EXIT_SUCCESS);
}

void Child::write(const Verdict &verdict, bool isLast) const
{
    QJsonObject json = toJson(verdict);
    json.insert("isLast", isLast);
    const QByteArray line = QJsonDocument(json).toJson(QJsonDocument::Compact) + '\n';
    if (::write(m_verdicts.handle(), line.constData(), line.size()) != line.size())
        std::_Exit(EXIT_FAILURE); // which is no good end
}

void Child::kill()
{
    m_isLate = true;
    ::kill(m_process, SIGKILL);
}

std::optional<Verdict> Child::verdict()
{
    int status = 0;
    if (m_process < 0)
        return Verdict{
            m_script, Verdict::NotStarted, {{m_script, "no process can be made for it"}}};
    if (waitpid(m_process, &status, WNOHANG) == 0)
        return {};
    m_process = -1;
    Verdict verdict = read(status);
    verdict.script = m_script;
    verdict.seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - m_started).count();
    verdict.course = QString::fromUtf8(m_course.contents());
    verdict.complaints = QString::fromUtf8(m_complaints.contents());
    return verdict;
}

Verdict Child::read(int status) const
{
    const QByteArray last = m_verdicts.contents().trimmed().split('\n').constLast();
    const QJsonObject json = QJsonDocument::fromJson(last).object();
    const Verdict verdict = verdictFrom(json);
    const bool isWhole =
        WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS && json.value("isLast").toBool();
    return isWhole ? verdict : withoutEnd(verdict, howItEnded(status));
}

Verdict Child::withoutEnd(Verdict soFar, const QString &how) const
{
    ScriptFault &fault = soFar.fault;
    if (fault.place.isEmpty())
        fault.place = m_script;
    fault.reason = fault.command.isEmpty() ? how : fault.command + ": " + how;
    fault.expected = "accepted";
    fault.found = how;
    soFar.end = Verdict::Failed;
    return soFar;
}

QString Child::howItEnded(int status) const
{
    if (m_isLate)
        return QString("hangs: ended by SIGKILL after %1 s").arg(m_timeout.count());
    if (WIFSIGNALED(status))
        return "crashed: " + signalName(WTERMSIG(status));
    return QString("the process ended with status %1 before the script").arg(WEXITSTATUS(status));
}

} // namespace till
