#include "till/script/Script.h"

#include "till/words/Words.h"

#include <algorithm>
#include <utility>

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
    ScriptPlay play(*this, commands, echo, update);
    Result<void, ScriptFault> played;
    while (!play.hasEnded())
        played = play.step();
    return played;
}

ScriptPlay::ScriptPlay(const Script &script, CommandLine &commands, Script::Echo echo,
                       ScriptUpdate *update)
    : m_script(script)
    , m_commands(commands)
    , m_echo(std::move(echo))
    , m_update(update)
{
}

Result<void, ScriptFault> ScriptPlay::step()
{
    if (m_hasEnded)
        return {};
    const QList<ScriptLine> &lines = m_script.lines();
    Result<void, ScriptFault> played = carryOut(lines[m_next++]);
    const Outcome answers = m_next == lines.size() ? m_commands.checkAnswers() : Outcome::done();
    if (played && !answers)
        played = faultOfLoose(m_commands.textOf(answers));
    m_hasEnded = !played || m_next == lines.size();
    if (m_hasEnded)
        m_commands.notes().add("verdict", {{"file", m_script.path()},
                                           {"held", played.has_value()},
                                           {"fault", played ? QString() : played.error().text()}});
    return played;
}

Result<void, ScriptFault> ScriptPlay::carryOut(const ScriptLine &line)
{
    if (m_commands.hasQuit() && line.isCommand())
        return behindQuit(m_commands, line);
    if (const QString shown = shownCommand(line); !shown.isEmpty())
        m_echo(forTerminal(shown));
    if (line.isCommand())
        m_commands.notes().add("script", {{"file", line.file}, {"at", line.number}});
    const Outcome outcome = m_commands.run(line.text);
    if (!outcome && !(m_update && m_update->mend(m_commands, line, outcome)))
        return faultOf(line, outcome, why(m_commands, outcome));
    lookForLoose(line);
    return {};
}

void ScriptPlay::lookForLoose(const ScriptLine &line)
{
    if (m_commands.questionsUnanswered() > 0 && !m_asking)
        m_asking = line;
    while (m_answering.size() > m_commands.answersWaiting())
        m_answering.removeFirst();
    while (m_answering.size() < m_commands.answersWaiting())
        m_answering.append(line);
}

ScriptFault ScriptPlay::faultOfLoose(const QString &left) const
{
    const ScriptLine line = m_asking ? *m_asking : m_answering.value(0);
    const QString command = brief(line.text.trimmed());
    return {{line.place(), command + ": " + left}, command, {}, left};
}

} // namespace till
