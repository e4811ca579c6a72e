#include "till/console/Interactive.h"

#include "till/console/Output.h"
#include "till/database/DatabaseFile.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QTextStream>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <unistd.h>

#include <readline/history.h>
#include <readline/readline.h>

namespace till {

namespace {

CommandLine *completed = nullptr; // readline's completion takes no argument of ours

std::optional<QString> readTyped(const char *prompt)
{
    const std::unique_ptr<char, void (*)(void *)> typed(readline(prompt), std::free);
    return typed ? std::optional(QString::fromUtf8(typed.get())) : std::nullopt;
}

std::optional<QString> readPiped()
{
    static QTextStream input(stdin);
    const QString line = input.readLine();
    return line.isNull() ? std::nullopt : std::optional(line);
}

char *nextCompletion(const char *text, int state)
{
    static QStringList left;
    if (state == 0) {
        const QString line = QString::fromUtf8(rl_line_buffer).left(rl_point);
        QStringList words = line.split(' ', Qt::SkipEmptyParts);
        if (words.isEmpty() || line.endsWith(' '))
            words.append(QString::fromUtf8(text));
        left = completed->completions(words);
    }
    return left.isEmpty() ? nullptr : strdup(left.takeFirst().toUtf8().constData());
}

char **complete(const char *text, int start, int end)
{
    Q_UNUSED(start)
    Q_UNUSED(end)
    rl_attempted_completion_over = 1; // file names are never wanted
    return rl_completion_matches(text, nextCompletion);
}

//! Adds the line to the history, and to its file at once: a till may end at any moment.
void remember(const QString &line, const QByteArray &historyFile)
{
    add_history(line.toUtf8().constData());
    if (append_history(1, historyFile.constData()) != 0) // there is no file yet
        write_history(historyFile.constData());
}

} // namespace

bool isTerminal()
{
    return isatty(STDIN_FILENO) != 0;
}

bool askOnTerminal(const Translator &translator)
{
    const QByteArray prompt = translator.text(told("till", "yes/no> ")).toUtf8();
    for (;;) {
        const std::optional<QString> typed = readTyped(prompt.constData());
        if (!typed)
            return false;
        const QString answer = typed->trimmed().toLower();
        if (QStringList{"yes", "y", "да", "д"}.contains(answer))
            return true;
        if (QStringList{"no", "n", "нет", "н"}.contains(answer))
            return false;
    }
}

bool runInteractive(CommandLine &commands, const Translator &translator, const QString &historyFile,
                    const std::function<void(const QString &text)> &show)
{
    const bool terminal = isTerminal();
    const QByteArray history = historyFile.toLocal8Bit();
    if (terminal) {
        completed = &commands;
        rl_attempted_completion_function = complete;
        makePrivateFolder(QFileInfo(historyFile).path());
        read_history(history.constData());
        show(translator.text(told("till", "The till. 'help' lists the commands, 'quit' leaves.")));
    }
    const QByteArray prompt = translator.text(told("till", "till> ")).toUtf8();
    bool allDone = true;
    qsizetype number = 0;
    QString shown = terminal ? commands.renderReceipt() : QString();
    while (!commands.hasQuit()) {
        const std::optional<QString> line = terminal ? readTyped(prompt.constData()) : readPiped();
        if (!line)
            break;
        if (terminal && !line->trimmed().isEmpty())
            remember(*line, history);
        const Outcome outcome = commands.run(*line);
        ++number;
        const QString text = commands.hasShown(outcome) ? translator.text(told("till", "refused"))
                                                        : commands.textOf(outcome);
        if (!outcome && !terminal)
            Output::error(translator.text(
                told("till", "standard input:%1: %2: %3")
                    .with({QString::number(number), line->trimmed(), commands.textOf(outcome)})));
        else if (!text.isEmpty())
            show(text);
        allDone = allDone && (terminal || outcome);
        if (!terminal || !commands.hasTouchedReceipt())
            continue;
        const QString receipt = commands.renderReceipt();
        if (!receipt.isEmpty() && receipt != shown)
            show(receipt);
        shown = receipt;
    }
    return allDone;
}

} // namespace till
