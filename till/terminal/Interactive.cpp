#include "till/terminal/Interactive.h"

#include "till/terminal/Output.h"
#include "till/terminal/TypedLine.h"

#include <QtCore/QTextStream>

#include <unistd.h>

namespace till {

namespace {

std::optional<QString> readPiped()
{
    static QTextStream input(stdin);
    const QString line = input.readLine();
    return line.isNull() ? std::nullopt : std::optional(line);
}

//! The lines of one run of the register.
class Lines
{
public:
    using Show = std::function<void(const QString &text)>;

    Lines(CommandLine &commands, const Translator &translator, const QString &historyFile,
          const Show &show)
        : m_commands(commands)
        , m_translator(translator)
        , m_historyFile(historyFile)
        , m_show(show)
    {
    }

    void runTyped()
    {
        openTerminal(m_commands, m_historyFile);
        m_show(say(told("till", "The till. 'help' lists the commands, 'quit' leaves.")));
        m_shown = m_commands.renderReceipt();
        while (!m_commands.hasQuit()) {
            const std::optional<TypedLine> line = readTyped(say(told("till", "till> ")));
            if (!line || isLeaving(line->end))
                return leave();
            if (line->end == TypedLine::Entered)
                runTyped(line->text);
        }
    }

    //! True when every line ended well.
    bool runPiped()
    {
        bool allDone = true;
        qsizetype number = 0;
        while (!m_commands.hasQuit()) {
            const std::optional<QString> line = readPiped();
            if (!line)
                break;
            ++number;
            const Outcome outcome = m_commands.run(*line);
            const QString text = m_commands.textOf(outcome);
            allDone = allDone && outcome;
            if (!outcome)
                Output::error(
                    say(told("till", "standard input:%1: %2: %3")
                            .with({QString::number(number), brief(line->trimmed()), text})));
            else if (!text.isEmpty())
                m_show(text);
        }
        return allDone;
    }

private:
    QString say(const Message &message) const { return m_translator.text(message); }

    //! Whether Ctrl-C came twice on an empty line; tells the first time that it would leave.
    bool isLeaving(TypedLine::End end)
    {
        const bool isSecond = m_hasDroppedNone && end == TypedLine::DroppedNone;
        m_hasDroppedNone = end == TypedLine::DroppedNone;
        if (m_hasDroppedNone && !isSecond)
            m_show(say(told("till", "Ctrl-C once more leaves the till")));
        return isSecond;
    }

    void leave()
    {
        if (m_commands.hasOpenReceipt())
            m_show(say(told("till", "The open receipt is kept.")));
    }

    void runTyped(const QString &line)
    {
        if (!line.trimmed().isEmpty())
            remember(line, m_historyFile);
        const Outcome outcome = m_commands.run(line);
        const QString text = m_commands.hasShown(outcome) ? say(told("till", "refused"))
                                                          : m_commands.textOf(outcome);
        if (!text.isEmpty())
            m_show(text);
        if (m_commands.hasTouchedReceipt())
            showChangedReceipt();
    }

    void showChangedReceipt()
    {
        const QString receipt = m_commands.renderReceipt();
        if (!receipt.isEmpty() && receipt != m_shown)
            m_show(receipt);
        m_shown = receipt;
    }

    CommandLine &m_commands;
    const Translator &m_translator;
    const QString m_historyFile;
    const Show &m_show;
    QString m_shown; //!< the receipt as it was shown last
    bool m_hasDroppedNone = false;
};

//! The words that answer a question.
class AnswerWords
{
public:
    explicit AnswerWords(const CommandLine::Choices &choices)
        : m_shown{choices.confirm.simplified(), choices.cancel.simplified()}
        , m_yes(alike(m_shown[0], {"yes", "y", "да", "д"}))
        , m_no(alike(m_shown[1], {"no", "n", "нет", "н"}))
    {
    }

    std::optional<bool> read(const QString &typed) const
    {
        const QString word = typed.simplified();
        if (m_yes.contains(word, Qt::CaseInsensitive))
            return true;
        return m_no.contains(word, Qt::CaseInsensitive) ? std::optional(false) : std::nullopt;
    }

    //! Those that are no single letters.
    QStringList offered() const
    {
        QStringList words = m_yes + m_no;
        words.removeIf([](const QString &word) { return word.size() < 2; });
        return words;
    }

    Message usage() const
    {
        return told("till", "To say yes: %1. To say no: %2.")
            .with({m_yes.join(", "), m_no.join(", ")});
    }

private:
    //! \a shown and those of \a words that are not shown already, as this choice or the other.
    QStringList alike(const QString &shown, QStringList words) const
    {
        words.removeIf([this](const QString &word) {
            return word.isEmpty() || m_shown.contains(word, Qt::CaseInsensitive);
        });
        return QStringList{shown} + words;
    }

    const QStringList m_shown;
    const QStringList m_yes;
    const QStringList m_no;
};

} // namespace

bool isTerminal()
{
    return isatty(STDIN_FILENO) != 0;
}

bool askOnTerminal(const Translator &translator, const CommandLine::Choices &choices)
{
    const AnswerWords words(choices);
    const QString prompt = translator.text(told("till", "yes/no> "));
    for (;;) {
        const std::optional<TypedLine> typed = readTyped(prompt, words.offered());
        if (!typed || typed->end != TypedLine::Entered)
            return false;
        if (const std::optional<bool> answer = words.read(typed->text))
            return *answer;
        Output(false).print(translator.text(words.usage()));
    }
}

bool runInteractive(CommandLine &commands, const Translator &translator, const QString &historyFile,
                    const std::function<void(const QString &text)> &show)
{
    Lines lines(commands, translator, historyFile, show);
    if (!isTerminal())
        return lines.runPiped();
    lines.runTyped();
    return true;
}

} // namespace till
