#include "till/terminal/TypedLine.h"

#include "till/database/DatabaseFile.h"
#include "till/terminal/Output.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <tuple>

#include <termios.h>
#include <unistd.h>

#include <readline/history.h>
#include <readline/readline.h>

namespace till {

namespace {

constexpr int ctrlC = 'C' & 0x1f;

// Readline's functions take no argument of ours.
const CommandLine *completed = nullptr;
QStringList wordsBefore; // what stands before the word that is completed
QStringList answers;     // what can be typed in place of a command
TypedLine::End howEnded = TypedLine::Entered;

QStringList candidatesFor(const QString &begun)
{
    if (answers.isEmpty())
        return completed->completions(wordsBefore + QStringList{begun});
    QStringList candidates = answers;
    candidates.removeIf(
        [&begun](const QString &answer) { return !answer.startsWith(begun, Qt::CaseInsensitive); });
    return candidates;
}

char *nextCompletion(const char *text, int state)
{
    static QStringList left;
    if (state == 0)
        left = candidatesFor(QString::fromUtf8(text));
    return left.isEmpty() ? nullptr : strdup(left.takeFirst().toUtf8().constData());
}

char **complete(const char *text, int start, int)
{
    QString before = QString::fromUtf8(rl_line_buffer, start);
    if (before.endsWith('"'))
        before.chop(1); // of the word that is typed
    wordsBefore = QProcess::splitCommand(before);
    rl_attempted_completion_over = 1; // file names are never wanted
    return rl_completion_matches(text, nextCompletion);
}

//! Takes \a words for what is typed next: as a whole, where there are any.
void awaitAnswers(const QStringList &words)
{
    answers = words;
    rl_completer_quote_characters = words.isEmpty() ? "\"" : "";
    // Like the till's own words: codes hold all other signs.
    rl_completer_word_break_characters = words.isEmpty() ? " \t\"" : "";
}

//! Ctrl-C is a key like any other while a line is typed: no signal comes at a wrong moment.
void prepareTerminal(int meta)
{
    rl_prep_terminal(meta);
    termios settings = {};
    tcgetattr(STDIN_FILENO, &settings);
    settings.c_cc[VINTR] = _POSIX_VDISABLE;
    tcsetattr(STDIN_FILENO, TCSADRAIN, &settings);
}

int dropLine(int, int)
{
    howEnded = rl_end == 0 ? TypedLine::DroppedNone : TypedLine::Dropped;
    std::fputs("^C\n", rl_outstream); // what follows does not stand over the line
    rl_done = 1;
    return 0;
}

} // namespace

void openTerminal(CommandLine &commands, const QString &historyFile)
{
    completed = &commands;
    rl_attempted_completion_function = complete;
    rl_prep_term_function = prepareTerminal;
    rl_initialize();
    rl_bind_key(ctrlC, dropLine);
    std::ignore = makePrivateFolder(QFileInfo(historyFile).path()); // then none is kept
    read_history(QFile::encodeName(historyFile).constData());
}

std::optional<TypedLine> readTyped(const QString &prompt, const QStringList &awaited)
{
    static QStringList pasted; // lines that came in one go and wait
    if (!pasted.isEmpty()) {
        Output().print(prompt + pasted.constFirst());
        return TypedLine{pasted.takeFirst()};
    }
    howEnded = TypedLine::Entered;
    awaitAnswers(awaited);
    const std::unique_ptr<char, void (*)(void *)> typed(readline(prompt.toUtf8().constData()),
                                                        std::free);
    if (!typed)
        return std::nullopt;
    if (howEnded != TypedLine::Entered)
        return TypedLine{{}, howEnded};
    pasted = QString::fromUtf8(typed.get()).split('\n');
    while (pasted.size() > 1 && pasted.constLast().isEmpty())
        pasted.removeLast();
    return TypedLine{pasted.takeFirst()};
}

void remember(const QString &line, const QString &historyFile)
{
    const QByteArray file = QFile::encodeName(historyFile);
    add_history(line.toUtf8().constData());
    if (append_history(1, file.constData()) != 0) // there is no file yet
        write_history(file.constData());
}

} // namespace till
