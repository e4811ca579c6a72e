#include "till/script/Script.h"

#include <QtCore/QFile>
#include <QtCore/QStringDecoder>

namespace till {

namespace {

bool isCommand(const QString &line)
{
    const QString trimmed = line.trimmed();
    return !trimmed.isEmpty() && !trimmed.startsWith('#');
}

//! What a reader is shown of \a line before it is carried out: the command, also the expected one.
QString shownCommand(const QString &line)
{
    static const QStringList silent{"expect", "answer", "say", "show"};
    static const QStringList ends{"accepted", "refused", "mistake"};
    const QString trimmed = line.trimmed();
    const QString command = trimmed.section(' ', 0, 0).toLower();
    if (command == "expect" && ends.contains(trimmed.section(' ', 1, 1).toLower()))
        return trimmed.section(' ', 2);
    return !isCommand(line) || silent.contains(command) ? QString() : trimmed;
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
    if (!file.open(QIODevice::ReadOnly))
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

Result<> Script::play(CommandLine &commands,
                      const std::function<void(const QString &line)> &echo) const
{
    const Result<> played = playLines(commands, echo);
    commands.notes().add("verdict", {{"file", m_path},
                                     {"held", played.has_value()},
                                     {"fault", played ? QString() : played.error().text()}});
    return played;
}

Result<> Script::playLines(CommandLine &commands,
                           const std::function<void(const QString &line)> &echo) const
{
    for (qsizetype i = 0; i < m_lines.size() && !commands.hasQuit(); ++i) {
        if (const QString shown = shownCommand(m_lines[i]); !shown.isEmpty())
            echo(forTerminal(shown));
        if (isCommand(m_lines[i]))
            commands.notes().add("script", {{"file", m_path}, {"at", i + 1}});
        if (const Outcome outcome = commands.run(m_lines[i]); !outcome)
            return Fault{place(i), brief(m_lines[i].trimmed()) + ": " + why(commands, outcome)};
    }
    if (const QString left = commands.leftOver(); !left.isEmpty())
        return Fault{place(m_lines.size() - 1), left};
    return {};
}

} // namespace till
