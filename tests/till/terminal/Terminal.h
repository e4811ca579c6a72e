#ifndef TESTS_TILL_TERMINAL_TERMINAL_H
#define TESTS_TILL_TERMINAL_TERMINAL_H

#include <string>
#include <utility>
#include <vector>

#include <sys/types.h>

//! A program on a terminal of its own, and a person before it.
class Terminal
{
public:
    using Variables = std::vector<std::pair<std::string, std::string>>;

    //! Starts \a program with \a arguments; its files are at home in \a home.
    Terminal(const std::string &program, const std::vector<std::string> &arguments,
             const std::string &home, const Variables &environment = {}, int columns = 200);
    //! Kills the program if it still runs.
    ~Terminal();
    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;

    //! Makes the terminal that wide.
    void resize(int columns) const;
    //! Types \a keys, as they are.
    void type(const std::string &keys) const;
    //! Reads until \a text has come; what came up to its end. Fails the test when it does not come.
    std::string readTo(const std::string &text);
    //! Types a line at the prompt; what the program says up to the next prompt.
    std::string enter(const std::string &line);
    //! Waits for the program's end; its exit status, or -1 for another end.
    int end();
    //! What came after what was read last, up to the program's end.
    const std::string &rest() const { return m_unread; }

    static constexpr const char *prompt = "касса> ";

private:
    //! Reads what comes next; false when nothing comes any more.
    bool readMore();

    pid_t m_process = -1;
    int m_screen = -1;
    std::string m_unread;
};

#endif // TESTS_TILL_TERMINAL_TERMINAL_H
