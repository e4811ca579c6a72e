#include "tests/till/kill/TillProcess.h"

#include <QtCore/QJsonDocument>

#include <array>
#include <csignal>
#include <stdexcept>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace till {

namespace {

std::array<int, 2> makePipe()
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    return ends;
}

void closeEnd(int &end)
{
    if (end != -1)
        close(end);
    end = -1;
}

} // namespace

TillProcess::TillProcess(const QStringList &arguments)
{
    std::signal(SIGPIPE, SIG_IGN); // it may be gone when it is sent something
    const auto input = makePipe();
    const auto output = makePipe();
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output[1], STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output[1], STDERR_FILENO);

    QByteArrayList words{TILL_PROGRAM, "--trace", "-", "--lang", "en"};
    for (const QString &argument : arguments)
        words.append(argument.toLocal8Bit());
    std::vector<char *> argv;
    for (QByteArray &word : words)
        argv.push_back(word.data());
    argv.push_back(nullptr);
    // What is ignored here is not ignored there.
    sigset_t preset;
    sigemptyset(&preset);
    sigaddset(&preset, SIGPIPE);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setsigdefault(&attributes, &preset);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
    const int error = posix_spawn(&m_process, argv[0], &actions, &attributes, argv.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    close(input[0]);
    close(output[1]);
    m_input = input[1];
    m_output = output[0];
    if (error != 0)
        throw std::runtime_error("the till did not start");
}

TillProcess::~TillProcess()
{
    kill();
    closeEnd(m_output);
}

void TillProcess::send(const QByteArray &command)
{
    const QByteArray line = command + '\n';
    [[maybe_unused]] const ssize_t written = write(m_input, line.constData(), line.size());
}

std::optional<QJsonObject> TillProcess::nextNote(Clock::time_point deadline)
{
    for (;;) {
        while (!m_received.contains('\n')) {
            if (!receive(deadline))
                return std::nullopt;
        }
        const qsizetype end = m_received.indexOf('\n');
        const QByteArray line = m_received.left(end);
        m_received.remove(0, end + 1);
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(line, &error);
        if (document.isObject())
            return document.object();
        if (!line.startsWith("till: standard input:"))
            m_stray += line + '\n';
    }
}

//! Takes in what is there. False when nothing came until \a deadline, or nothing will come.
bool TillProcess::receive(Clock::time_point deadline)
{
    const auto left =
        std::max<std::chrono::nanoseconds>(deadline - Clock::now(), std::chrono::nanoseconds(0));
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(left);
    const timespec timeout{seconds.count(), (left - seconds).count()};
    pollfd awaited{m_output, POLLIN, 0};
    if (ppoll(&awaited, 1, &timeout, nullptr) <= 0)
        return false;
    std::array<char, 65536> buffer;
    const ssize_t count = read(m_output, buffer.data(), buffer.size());
    if (count <= 0)
        return false;
    m_received.append(buffer.data(), count);
    return true;
}

void TillProcess::kill()
{
    if (m_process == -1)
        return;
    ::kill(m_process, SIGKILL);
    wait();
}

int TillProcess::finish()
{
    closeEnd(m_input);
    return wait();
}

int TillProcess::wait()
{
    int status = 0;
    waitpid(m_process, &status, 0);
    m_process = -1;
    closeEnd(m_input);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace till
