#include "contract/Runner.h"

#include "contract/Driver.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace contract {

namespace {

// For a host that waits for something, not for a slow machine.
constexpr unsigned watchdogSeconds = 300;

Finding runGuarded(const Check &check)
{
    try {
        return check.run();
    } catch (const NotOffered &operation) {
        return unchecked(QStringLiteral("the adapter's driver offers no \"%1\"")
                             .arg(QString::fromLatin1(operation.name)));
    } catch (const std::exception &exception) {
        return broken(QStringLiteral("an exception: %1").arg(exception.what()));
    } catch (...) {
        return broken(QStringLiteral("an exception"));
    }
}

void dropOutput()
{
    const int nowhere = open("/dev/null", O_WRONLY);
    dup2(nowhere, STDOUT_FILENO);
    dup2(nowhere, STDERR_FILENO);
}

void send(int channel, const Finding &finding)
{
    const QByteArray message = char(finding.kind) + finding.text.toUtf8();
    // A pipe takes this much at once, and a text is a line.
    [[maybe_unused]] const auto written = write(channel, message.constData(), message.size());
}

[[noreturn]] void runAsChild(const Check &check, int channel, bool showsOutput)
{
    if (!showsOutput)
        dropOutput();
    alarm(watchdogSeconds);
    send(channel, runGuarded(check));
    close(channel);
    std::exit(EXIT_SUCCESS);
}

QByteArray receive(int channel)
{
    QByteArray message;
    char part[4096];
    for (ssize_t size = 0; (size = read(channel, part, sizeof part)) > 0;)
        message.append(part, size);
    return message;
}

Finding conclude(const QByteArray &message, int status)
{
    if (WIFSIGNALED(status) && WTERMSIG(status) == SIGALRM)
        return broken(QStringLiteral("did not end within five minutes"));
    if (WIFSIGNALED(status)) {
        return broken(QStringLiteral("crashed (SIG%1)")
                          .arg(QString::fromLatin1(sigabbrev_np(WTERMSIG(status)))));
    }
    if (message.isEmpty())
        return broken(QStringLiteral("the process ended with status %1 inside the check")
                          .arg(WEXITSTATUS(status)));
    return {Finding::Kind(message.front()), QString::fromUtf8(message.mid(1))};
}

} // namespace

Finding runApart(const Check &check, bool showsOutput)
{
    int channel[2];
    if (pipe2(channel, O_CLOEXEC) != 0)
        return unchecked(QStringLiteral("no pipe: %1").arg(std::strerror(errno)));
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        close(channel[0]);
        runAsChild(check, channel[1], showsOutput);
    }
    close(channel[1]);
    if (child < 0) {
        close(channel[0]);
        return unchecked(QStringLiteral("no process: %1").arg(std::strerror(errno)));
    }
    const QByteArray message = receive(channel[0]);
    close(channel[0]);
    int status = 0;
    waitpid(child, &status, 0);
    return conclude(message, status);
}

} // namespace contract
