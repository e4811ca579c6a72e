#include "till/script/Script.h"

#include <QtCore/QFile>
#include <QtCore/QStringDecoder>

#include <algorithm>

namespace till {

namespace {

bool isCommand(const QString &line)
{
    const QString trimmed = line.trimmed();
    return !trimmed.isEmpty() && !trimmed.startsWith('#');
}

QString firstWord(const QString &line)
{
    return line.trimmed().section(' ', 0, 0).toLower();
}

//! What a reader is shown of \a line before it is carried out: the command, also the expected one.
QString shownCommand(const QString &line)
{
    static const QStringList silent{"expect", "answer", "say", "show"};
    static const QStringList ends{"accepted", "refused", "mistake"};
    const QString trimmed = line.trimmed();
    const QString command = firstWord(line);
    if (command == "expect" && ends.contains(trimmed.section(' ', 1, 1).toLower()))
        return trimmed.section(' ', 2);
    return !isCommand(line) || silent.contains(command) ? QString() : trimmed;
}

//! The fault of the line \a command at \a place, which ended so.
ScriptFault faultOf(const QString &place, const QString &command, const Outcome &outcome,
                    const QString &why)
{
    ScriptFault fault{{place, command + ": " + why}, command, "accepted", why};
    if (outcome.kind == Outcome::Unexpected) {
        const QStringList &values = outcome.reason.values; // what, expected, found
        fault.expected = values.value(0) + ": " + values.value(1);
        fault.found = values.value(2);
    }
    return fault;
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
    m_lines.clear();
    QFile file(path);
    if (path == "-" ? !file.open(stdin, QIODevice::ReadOnly) : !file.open(QIODevice::ReadOnly))
        return Fault{path, file.errorString()};
    const QByteArray bytes = file.readAll();
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return Fault{path, "not UTF-8 text"};
    m_lines = text.split('\n');
    return {};
}

QString Script::place(qsizetype line) const
{
    return QString("%1:%2").arg(m_path).arg(line + 1);
}

qsizetype Script::expectations() const
{
    return std::count_if(m_lines.cbegin(), m_lines.cend(), [](const QString &line) {
        return firstWord(line) == QLatin1String("expect");
    });
}

Result<void, ScriptFault> Script::play(CommandLine &commands,
                                       const std::function<void(const QString &line)> &echo) const
{
    const auto played = playLines(commands, echo);
    commands.notes().add("verdict", {{"file", m_path},
                                     {"held", played.has_value()},
                                     {"fault", played ? QString() : played.error().text()}});
    return played;
}

Result<void, ScriptFault>
Script::playLines(CommandLine &commands, const std::function<void(const QString &line)> &echo) const
{
    for (qsizetype i = 0; i < m_lines.size() && !commands.hasQuit(); ++i) {
        if (const QString shown = shownCommand(m_lines[i]); !shown.isEmpty())
            echo(forTerminal(shown));
        if (isCommand(m_lines[i]))
            commands.notes().add("script", {{"file", m_path}, {"at", i + 1}});
        if (const Outcome outcome = commands.run(m_lines[i]); !outcome)
            return faultOf(place(i), brief(m_lines[i].trimmed()), outcome, why(commands, outcome));
    }
    if (const QString left = commands.leftOver(); !left.isEmpty())
        return ScriptFault{{place(m_lines.size() - 1), left}};
    return {};
}

} // namespace till
