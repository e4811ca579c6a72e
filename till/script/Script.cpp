#include "till/script/Script.h"

#include "till/words/Words.h"

#include <algorithm>
#include <optional>

namespace till {

namespace {

//! What a reader is shown of \a line before it is carried out: the command, also the expected one.
QString shownCommand(const ScriptLine &line)
{
    static const QStringList silent{"expect", "answer", "say", "show"};
    static const QStringList ends{"accepted", "refused", "mistake"};
    const QString trimmed = line.text.trimmed();
    const QString command = line.command();
    if (command == "expect" && ends.contains(trimmed.section(' ', 1, 1).toLower()))
        return trimmed.section(' ', 2);
    return !line.isCommand() || silent.contains(command) ? QString() : trimmed;
}

//! The fault of \a line, which ended so.
ScriptFault faultOf(const ScriptLine &line, const Outcome &outcome, const QString &why)
{
    const QString command = brief(line.text.trimmed());
    ScriptFault fault{{line.place(), command + ": " + why}, command, "accepted", why};
    if (outcome.kind == Outcome::Unexpected) {
        const QStringList &values = outcome.reason.values; // what, expected, found
        const QStringList words = splitWords(line.text).value_or(QStringList());
        fault.expected = Expectations::isOfCommand(words.mid(1))
                             ? values.value(1)
                             : values.value(0) + ": " + values.value(1);
        fault.found = values.value(2);
    }
    return fault;
}

ScriptFault behindQuit(const CommandLine &commands, const ScriptLine &line)
{
    const QString command = brief(line.text.trimmed());
    const QString why = commands.textOf(
        Outcome::mistake(told("till", "stands behind 'quit', where nothing is carried out")));
    return {{line.place(), command + ": " + why}, command, {}, why, true};
}

//! The lines that gave the answers, and asked the questions, that are left over.
class Loose
{
public:
    //! \a line was carried out.
    void look(const CommandLine &commands, const ScriptLine &line)
    {
        if (commands.questionsUnanswered() > 0 && !m_asking)
            m_asking = line;
        while (m_answering.size() > commands.answersWaiting())
            m_answering.removeFirst();
        while (m_answering.size() < commands.answersWaiting())
            m_answering.append(line);
    }

    //! The fault that \a left is left over.
    ScriptFault fault(const QString &left) const
    {
        const ScriptLine line = m_asking ? *m_asking : m_answering.value(0);
        const QString command = brief(line.text.trimmed());
        return {{line.place(), command + ": " + left}, command, {}, left};
    }

private:
    QList<ScriptLine> m_answering; //!< for each answer that waits
    std::optional<ScriptLine> m_asking;
};

//! What is wrong with a line that ended so; of a refusal also its key.
QString why(const CommandLine &commands, const Outcome &outcome)
{
    const QString text = commands.textOf(outcome);
    const bool hasKey = outcome.isRefusal() && !outcome.reason.key().isEmpty();
    return hasKey ? text + " (" + outcome.reason.key() + ')' : text;
}

} // namespace

Result<> Script::read(const QString &path)
{
    m_path = path;
    const auto lines = readScript(path);
    if (!lines)
        return lines.error();
    m_lines = *lines;
    return {};
}

qsizetype Script::expectations() const
{
    return std::count_if(m_lines.cbegin(), m_lines.cend(), [](const ScriptLine &line) {
        return line.command() == QLatin1String("expect");
    });
}

bool Script::maySave() const
{
    return std::any_of(m_lines.cbegin(), m_lines.cend(), [](const ScriptLine &line) {
        return line.text.contains(QLatin1String("save"), Qt::CaseInsensitive);
    });
}

Result<void, ScriptFault> Script::play(CommandLine &commands, const Echo &echo,
                                       ScriptUpdate *update) const
{
    const auto played = playLines(commands, echo, update);
    commands.notes().add("verdict", {{"file", m_path},
                                     {"held", played.has_value()},
                                     {"fault", played ? QString() : played.error().text()}});
    return played;
}

Result<void, ScriptFault> Script::playLines(CommandLine &commands, const Echo &echo,
                                            ScriptUpdate *update) const
{
    Loose loose;
    for (const ScriptLine &line : m_lines) {
        if (commands.hasQuit() && line.isCommand())
            return behindQuit(commands, line);
        if (const QString shown = shownCommand(line); !shown.isEmpty())
            echo(forTerminal(shown));
        if (line.isCommand())
            commands.notes().add("script", {{"file", line.file}, {"at", line.number}});
        const Outcome outcome = commands.run(line.text);
        if (!outcome && !(update && update->mend(commands, line, outcome)))
            return faultOf(line, outcome, why(commands, outcome));
        loose.look(commands, line);
    }
    if (const QString left = commands.leftOver(); !left.isEmpty())
        return loose.fault(left);
    return {};
}

} // namespace till
