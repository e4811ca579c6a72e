#include "till/terminal/Output.h"

#include "till/view/DisplayText.h"
#include "till/view/TextPage.h"

#include <QtCore/qlogging.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

#include <sys/ioctl.h>
#include <unistd.h>

namespace till {

namespace {

int outputError = 0; // the first errno of standard output

pid_t passingLineOf = 0; // the process that shows one; what is forked from it prints elsewhere
constexpr char clearLine[] = "\r\x1b[K";

int columnsOf(std::FILE *file)
{
    winsize size = {};
    const bool isKnown = ioctl(fileno(file), TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return isKnown ? std::clamp<int>(size.ws_col, 60, 120) : Style::columnsOfAPipe();
}

//! \a text as wide as \a file, which may be no terminal.
QString fitted(const QString &text, std::FILE *file)
{
    return isatty(fileno(file)) != 0 ? wrapped(text, columnsOf(file)) : text;
}

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

int Output::columns()
{
    return columnsOf(stdout);
}

void Output::print(const QString &text) const
{
    const QString safe = forTerminal(text, m_hasColours);
    // What is longer than the buffer is not left to be flushed.
    const bool isWritten =
        write(m_isText ? fitted(safe, stdout) : safe, stdout) && std::fflush(stdout) == 0;
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
    write(fitted(forTerminal(complaints), stderr), stderr);
}

void Output::error(const QString &text)
{
    const QString line =
        forTerminal("till: " + text).replace('\n', ' '); // a file's name may have one
    write(fitted(line, stderr), stderr);
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

Result<> Output::written()
{
    if (outputError == 0)
        return {};
    return Fault{"standard output", QString::fromLocal8Bit(strerror(outputError))};
}

} // namespace till
