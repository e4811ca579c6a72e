#include "tests/till/terminal/Terminal.h"

#include "tests/till/console/ProgramFixture.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include <poll.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

[[noreturn]] void become(const std::string &program, const std::vector<std::string> &arguments,
                         const std::string &home, const Terminal::Variables &environment)
{
    setenv("HOME", home.c_str(), 1);
    setenv("XDG_DATA_HOME", home.c_str(), 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    setenv("TERM", "dumb", 1);
    setenv("INPUTRC", "/dev/null", 1);
    for (const auto &[name, value] : environment)
        setenv(name.c_str(), value.c_str(), 1);
    std::vector<std::string> words{program};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char *> pointers;
    for (std::string &word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    execv(program.c_str(), pointers.data());
    _exit(127);
}

} // namespace

Terminal::Terminal(const std::string &program, const std::vector<std::string> &arguments,
                   const std::string &home, const Variables &environment, int columns)
{
    const winsize size{50, static_cast<unsigned short>(columns), 0, 0};
    m_process = forkpty(&m_screen, nullptr, nullptr, &size);
    if (m_process == 0)
        become(program, arguments, home, environment);
    EXPECT_GT(m_process, 0);
}

Terminal::~Terminal()
{
    if (m_process > 0) {
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }
    close(m_screen);
}

void Terminal::resize(int columns) const
{
    const winsize size{50, static_cast<unsigned short>(columns), 0, 0};
    EXPECT_EQ(ioctl(m_screen, TIOCSWINSZ, &size), 0);
}

void Terminal::type(const std::string &keys) const
{
    EXPECT_EQ(write(m_screen, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
}

bool Terminal::readMore()
{
    pollfd screen{m_screen, POLLIN, 0};
    if (poll(&screen, 1, patience) != 1)
        return false;
    char bytes[4096];
    const ssize_t count = read(m_screen, bytes, sizeof bytes);
    if (count <= 0)
        return false;
    m_unread.append(bytes, static_cast<size_t>(count));
    return true;
}

std::string Terminal::readTo(const std::string &text)
{
    size_t found = std::string::npos;
    while ((found = m_unread.find(text)) == std::string::npos && readMore()) {
    }
    if (found == std::string::npos) {
        ADD_FAILURE() << "\"" << text << "\" does not come, only: " << m_unread;
        return {};
    }
    const std::string read = m_unread.substr(0, found + text.size());
    m_unread.erase(0, read.size());
    return read;
}

std::string Terminal::enter(const std::string &line)
{
    type(line + '\n');
    return readTo(prompt);
}

int Terminal::end()
{
    while (readMore()) {
    }
    int status = 0;
    waitpid(m_process, &status, 0);
    m_process = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}
