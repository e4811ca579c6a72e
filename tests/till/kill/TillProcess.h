#ifndef TESTS_TILL_KILL_TILLPROCESS_H
#define TESTS_TILL_KILL_TILLPROCESS_H

#include "tests/support/Patience.h"

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayList>
#include <QtCore/QJsonObject>
#include <QtCore/QStringList>

#include <chrono>
#include <optional>

#include <sys/types.h>

namespace till {

//! The real till in a process of its own, with pipes to what it reads and writes.
class TillProcess
{
public:
    using Clock = std::chrono::steady_clock;

    //! Starts the till with \a arguments and the trace on its standard output.
    explicit TillProcess(const QStringList &arguments);
    //! Kills it when it is still there.
    ~TillProcess();
    Q_DISABLE_COPY_MOVE(TillProcess)

    //! Gives it one command to read.
    void send(const QByteArray &command);

    //! When a till that hangs is given up.
    static Clock::time_point givenUp()
    {
        return Clock::now() + std::chrono::milliseconds(patience);
    }
    //! The next note of the trace; nothing when \a deadline passes before, or when it has ended.
    std::optional<QJsonObject> nextNote(Clock::time_point deadline = givenUp());

    //! Kills it at once and waits for its end. What it wrote before can still be read.
    void kill();
    //! Ends its input and waits for its end; its exit status.
    int finish();

    //! What it wrote that is neither a note nor says what is wrong with a command: nothing when all
    //! is well. Only after its end.
    QByteArray strayOutput() const { return m_stray; }

private:
    bool receive(Clock::time_point deadline);
    int wait();

    pid_t m_process = -1;
    int m_input = -1;
    int m_output = -1;
    QByteArray m_received;
    QByteArray m_stray;
};

} // namespace till

#endif // TESTS_TILL_KILL_TILLPROCESS_H
