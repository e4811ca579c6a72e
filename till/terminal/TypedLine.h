#ifndef TILL_TERMINAL_TYPEDLINE_H
#define TILL_TERMINAL_TYPEDLINE_H

#include "till/script/CommandLine.h"

#include <optional>

namespace till {

//! What a person did at a prompt.
struct TypedLine
{
    enum End {
        Entered,
        Dropped,    //!< Ctrl-C dropped what had been typed
        DroppedNone //!< Ctrl-C, and there was nothing
    };

    QString text;
    End end = Entered;
};

//! Readies the terminal's line editing, with completions from \a commands, which must outlive it,
//! and with the history of \a historyFile.
void openTerminal(CommandLine &commands, const QString &historyFile);

//! Reads a line behind \a prompt: a command, or one of \a answers where there are any. Of several
//! lines that were pasted in one go each is read by itself. Nothing at the end of the input, which
//! is Ctrl-D.
std::optional<TypedLine> readTyped(const QString &prompt, const QStringList &answers = {});

//! Adds a line to the history, and to its file at once: a till may end at any moment.
void remember(const QString &line, const QString &historyFile);

} // namespace till

#endif // TILL_TERMINAL_TYPEDLINE_H
