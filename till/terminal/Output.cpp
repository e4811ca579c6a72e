#include "till/terminal/Output.h"

#include "till/view/DisplayText.h"

#include <QtCore/qlogging.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

#include <unistd.h>

namespace till {

namespace {

int outputError = 0; // the first errno of standard output

pid_t passingLineOf = 0; // the process that shows one; what is forked from it prints elsewhere
constexpr char clearLine[] = "\r\x1b[K";

bool write(const QString &text, std::FILE *file)
{
    if (std::exchange(passingLineOf, 0) == getpid()) {
        std::fputs(clearLine, stdout);
        std::fflush(stdout);
    }
    QByteArray bytes = text.toUtf8();
    if (!bytes.endsWith('\n'))
        bytes.append('\n');
    const auto size = static_cast<size_t>(bytes.size());
    return std::fwrite(bytes.constData(), 1, size, file) == size; // a NUL cuts nothing
}

} // namespace

void Output::print(const QString &text) const
{
    // What is longer than the buffer is not left to be flushed.
    const bool isWritten =
        write(forTerminal(text, m_hasColours), stdout) && std::fflush(stdout) == 0;
    if (!isWritten && outputError == 0)
        outputError = errno;
}

void Output::printPassing(const QString &line)
{
    std::fputs((clearLine + printable(line).toUtf8()).constData(), stdout);
    std::fflush(stdout);
    passingLineOf = getpid();
}

void Output::passOn(const QString &complaints)
{
    write(forTerminal(complaints), stderr);
}

void Output::error(const QString &text)
{
    write(forTerminal("till: " + text).replace('\n', ' '), stderr); // a file's name may have one
}

void Output::installMessageHandler()
{
    qInstallMessageHandler(
        [](QtMsgType type, const QMessageLogContext &context, const QString &text) {
            if (text.startsWith("Detected locale")) // which the till tells in its own words
                return;
            write(forTerminal(qFormatLogMessage(type, context, text)), stderr);
        });
}

QString Output::fault()
{
    return outputError == 0 ? QString()
                            : "standard output: " + QString::fromLocal8Bit(strerror(outputError));
}

} // namespace till
