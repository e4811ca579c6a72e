#include "till/runner/Child.h"

#include <QtCore/QJsonDocument>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>

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

Fault notMade(const QString &script)
{
    return {script, QString("no process can be made for it: %1").arg(strerror(errno))};
}

//! What is kept of \a file, which says itself that it is not all.
QString textOf(const MemoryFile &file, const Translator &translator)
{
    const QString text = QString::fromUtf8(file.contents());
    if (!file.isCut())
        return text;
    return text + '\n'
           + translator.text(told("till", "… what came behind %1 MiB is left out")
                                 .with({QString::number(MemoryFile::kept >> 20)}))
           + '\n';
}

} // namespace

Child::Child(const QString &script, const Apart &apart)
    : m_script(script)
    , m_timeout(apart.timeout)
    , m_translator(apart.translator)
{
}

Result<std::unique_ptr<Child>> Child::start(const QString &script, const Apart &apart,
                                            const std::function<void()> &enter)
{
    std::unique_ptr<Child> child(new Child(script, apart));
    const bool isReady =
        child->m_course.isOpen() && child->m_complaints.isOpen() && child->m_verdict.isThere();
    if (!isReady)
        return notMade(script);
    const pid_t process = fork();
    if (process < 0)
        return notMade(script);
    if (process == 0) {
        enter();
        child->play(apart);
    }
    child->m_process = process;
    setpgid(process, process); // whichever of both comes first
    return child;
}

Child::~Child()
{
    if (m_process > 0)
        end();
}

void Child::forget()
{
    m_course.close();
    m_complaints.close();
}

void Child::play(const Apart &apart) const
{
    setpgid(0, 0);                    // what is started from here is ended with it
    prctl(PR_SET_PDEATHSIG, SIGKILL); // nobody would end it where it hangs
    std::signal(SIGTTIN, SIG_IGN);    // a look at the terminal finds nothing, and does not wait
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
    if (!m_verdict.write(QJsonDocument(json).toJson(QJsonDocument::Compact)))
        std::_Exit(EXIT_FAILURE); // which is no good end
}

void Child::kill()
{
    m_how = m_translator.text(told("till", "hangs: ended by SIGKILL after %1 s")
                                  .with({QString::number(m_timeout.count())}));
    ::kill(-m_process, SIGKILL);
}

std::optional<Verdict> Child::verdict()
{
    siginfo_t info = {};
    constexpr int look = WEXITED | WNOHANG | WNOWAIT;
    if (waitid(P_PID, static_cast<id_t>(m_process), &info, look) != 0 || info.si_pid == 0)
        return {};
    return ended(end());
}

Verdict Child::interrupt(int signal)
{
    m_how = m_translator.text(told("till", "interrupted by %1").with({signalName(signal)}));
    m_end = Verdict::Interrupted;
    return ended(end());
}

//! Ends the process with all that was started from it; its status. Its number is not given to
//! another before it is asked for.
int Child::end()
{
    int status = 0;
    ::kill(-m_process, SIGKILL);
    waitpid(m_process, &status, 0);
    m_process = -1;
    return status;
}

Verdict Child::ended(int status) const
{
    Verdict verdict = read(status);
    verdict.script = m_script;
    verdict.seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - m_started).count();
    verdict.course = textOf(m_course, m_translator);
    verdict.complaints = textOf(m_complaints, m_translator);
    return verdict;
}

Verdict Child::read(int status) const
{
    const QJsonObject json = QJsonDocument::fromJson(m_verdict.text()).object();
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
    fault.expected = fault.command.isEmpty() ? QString() : "accepted";
    fault.found = how;
    soFar.end = m_end;
    soFar.isCutOff = true;
    return soFar;
}

QString Child::howItEnded(int status) const
{
    if (!m_how.isEmpty())
        return m_how;
    if (WIFSIGNALED(status))
        return m_translator.text(told("till", "crashed: %1").with({signalName(WTERMSIG(status))}));
    return m_translator.text(told("till", "the process ended with status %1 before the script")
                                 .with({QString::number(WEXITSTATUS(status))}));
}

} // namespace till
