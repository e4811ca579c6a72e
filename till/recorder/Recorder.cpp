#include "till/recorder/Recorder.h"

#include "till/recorder/RecordedWords.h"
#include "till/words/RegisterWords.h"

#include <utility>

namespace till {

Recorder::Recorder(Write write)
    : m_write(std::move(write))
{
}

const QSet<QString> &Recorder::kinds()
{
    static const QSet<QString> kinds{"start",    "verdict", "command", "outcome",
                                     "question", "answer",  "message", "takeup",
                                     "position", "data",    "receipt", "loyalty"};
    return kinds;
}

std::optional<Document::Type> Recorder::openedBy(const QString &text)
{
    const ReadCommand read = readCommand(commandWords(text));
    if (!read || !std::holds_alternative<command::Open>(*read))
        return std::nullopt;
    return std::get<command::Open>(*read).type;
}

void Recorder::read(const QJsonObject &note)
{
    const QString kind = note["kind"].toString();
    m_now.read(note);
    if (kind == "start")
        readStart(note);
    else if (kind == "verdict")
        readVerdict();
    else if (kind == "takeup")
        readTakeUp(note["id"].toInteger());
    else if (kind == "command")
        begin({note["text"].toString(), {}, {}, {}, {}});
    else if (kind == "outcome")
        readOutcome(note["outcome"].toString());
    else if (kind == "question" && m_underWay) {
        appendOnce(m_underWay->questions, saidName(note));
        appendOnce(m_underWay->questions, saidText(note));
    } else if (kind == "loyalty" && m_underWay)
        ++m_underWay->loyalty;
    else if (kind == "question")
        leaveOut(told("till", "a question that no command asked"), note["text"].toString());
    else if (kind == "answer" && m_underWay)
        m_underWay->answers.append(note["confirmed"].toBool() ? "yes" : "no");
    else if (kind == "message" && m_underWay) {
        m_underWay->isSilent = false;
        appendOnce(m_underWay->messages, saidName(note));
    }
}

void Recorder::finish()
{
    const UnderWay last = m_underWay.value_or(UnderWay());
    begin({});
    tellEnd();
    tellCutOff(last);
}

QStringList Recorder::unsaid() const
{
    QStringList texts;
    for (const Unsaid &one : m_unsaid)
        texts.append(one.why.pattern.text() + ": " + one.text);
    return texts;
}

Message Recorder::report(const QString &path) const
{
    if (m_unsaid.isEmpty())
        return told("till", "%1: %2 command(s), %3 expectation(s)")
            .with({path, QString::number(m_commands), QString::number(m_expectations)});
    const Unsaid &first = m_unsaid.constFirst();
    const QStringList values{path, first.why.pattern.text(), first.text,
                             QString::number(m_unsaid.size() - 1)};
    return (m_unsaid.size() == 1
                ? told("till", "%1: a script cannot say: %L2: %3")
                : told("till", "%1: a script cannot say: %L2: %3; and %4 more, as it tells"))
        .with(values);
}

void Recorder::readStart(const QJsonObject &note)
{
    m_database = note["database"].toString();
    const QJsonObject settings = note["settings"].toObject();
    QStringList lines = settingLines(settings, std::exchange(m_settings, settings));
    if (!std::exchange(m_isOn, true))
        return; // the settings are told where a receipt is opened
    if (lines.isEmpty())
        lines.append("restart");
    if (!m_underWay)
        begin({}); // by a front without lines
    m_underWay->switching += lines;
}

void Recorder::begin(const UnderWay &command)
{
    if (m_underWay && !m_underWay->switching.isEmpty())
        tellSwitched(*m_underWay);
    m_underWay = command;
}

//! Scripts that are played one after the other have a till each: in one script they have the same.
void Recorder::readVerdict()
{
    if (m_database != ":memory:")
        return;
    tellEnd();
    const bool isCutOff = m_underWay && tellCutOff(*m_underWay);
    m_underWay.reset();
    if (m_told.isUnfinished() && !m_isStrange && !isCutOff) {
        m_write("# Another till goes on, and has no receipt.");
        m_write("answer yes");
        m_write("cancel");
    }
    m_isOn = false;
    m_told = {};
    m_toldSettings = {};
}

void Recorder::readTakeUp(qint64 id)
{
    if (!m_underWay || m_underWay->hasOpened || !openedBy(m_underWay->text)) {
        m_isStrange = m_isStrange || (id != 0 && id != m_id);
        return;
    }
    tellEnd();
    m_told = {};
    m_isStrange = false;
    m_underWay->hasOpened = true;
    const QStringList lines = settingLines(m_settings, m_toldSettings);
    m_toldSettings = m_settings;
    for (const QString &line : lines)
        m_write(line);
}

void Recorder::readOutcome(const QString &outcome)
{
    if (!m_underWay)
        return;
    const UnderWay command = *std::exchange(m_underWay, std::nullopt);
    if (!command.switching.isEmpty())
        tellSwitched(command);
    else if (isOfRegister(command.text))
        tell(command, outcome);
    else if (outcome == "failed" && switchesTill(command.text))
        leaveOut(told("till", "could not be done"), command.text);
}

void Recorder::tellSwitched(const UnderWay &command)
{
    if (m_isStrange)
        return;
    tellAnswers(command);
    for (const QString &line : command.switching)
        m_write(line);
    m_toldSettings = m_settings;
    tellSaid(command);
    expect(expectationsOf(m_now, &m_told));
    m_told = m_now;
}

void Recorder::tell(const UnderWay &command, const QString &outcome)
{
    static const QMap<QString, QString> ends{
        {"done", ""}, {"refused", "expect refused "}, {"mistake", "expect mistake "}};
    const bool isMistake = outcome == "mistake";
    if (m_isStrange)
        return leaveOut(told("till", "the receipt was opened before this begins"), command.text);
    if (outcome == "failed")
        return leaveOut(told("till", "could not be done"), command.text);
    if (!ends.contains(outcome) || !canBeTyped(command.text, isMistake))
        return leaveOut(told("till", "cannot be typed"), command.text);
    tellAnswers(command);
    tellCommand(ends[outcome] + command.text);
    if (!isMistake)
        tellWhatItDid(command);
}

void Recorder::tellWhatItDid(const UnderWay &command)
{
    tellSaid(command);
    if (command.isSilent)
        expect({"message none"});
    expect(expectationsOf(m_now, &m_told));
    m_told = m_now;
    m_id = m_now.record.id;
}

void Recorder::tellSaid(const UnderWay &command)
{
    for (const QString &question : command.questions)
        expect({"question " + question});
    for (const QString &message : command.messages)
        expect({"message " + message});
    if (command.loyalty > 0)
        expect({QString("loyalty %1").arg(command.loyalty)});
}

void Recorder::tellAnswers(const UnderWay &command)
{
    if (!command.answers.isEmpty())
        m_write("answer " + command.answers.join(' '));
}

//! Of a receipt that another follows, or nothing: all that it came to.
void Recorder::tellEnd()
{
    if (!m_told.isThere || m_isStrange)
        return;
    m_write("# What it came to:");
    expect(expectationsOf(m_told));
}

//! Of a command that has not ended; false when it is none of the register.
bool Recorder::tellCutOff(const UnderWay &command)
{
    if (!isOfRegister(command.text))
        return false;
    m_write("# The course of things ends within this command:");
    tellAnswers(command);
    tellCommand(command.text);
    return true;
}

void Recorder::tellCommand(const QString &line)
{
    ++m_commands;
    m_write(line);
}

void Recorder::expect(const QStringList &texts)
{
    m_expectations += static_cast<int>(texts.size());
    for (const QString &text : texts)
        m_write("expect " + text);
}

void Recorder::leaveOut(const Message &why, const QString &text)
{
    m_unsaid.append({why, QString(text).replace('\n', ' ')});
    m_write("# " + unsaid().constLast());
}

} // namespace till
