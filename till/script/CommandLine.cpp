#include "till/script/CommandLine.h"

#include "till/script/Expectations.h"
#include "till/script/Usage.h"
#include "till/script/Words.h"

#include <QtCore/QRegularExpression>

#include <utility>

namespace till {

namespace {

//! A copy that shares nothing: a plugin's text may lie in its image, which a restart takes away.
QString copied(const QString &text)
{
    return QString(text.constData(), text.size());
}

} // namespace

//! A row of the table of commands.
struct CommandLine::Command
{
    Usage usage;
    Outcome (CommandLine::*run)(const QStringList &words); //!< given the words behind the name
    bool isWatching = false; //!< looks at what the command before it did
    bool worksOff = false;   //!< needs no till that is switched on
};

const QList<CommandLine::Command> &CommandLine::commands()
{
    static const QList<Command> table{
        {{"open", "[sale|return]", "open a receipt", 0, 1}, &CommandLine::open},
        {{"add", "ARTICLE [QUANTITY]", "add an article as a new position; quantity 1 if none", 1,
          2},
         &CommandLine::add},
        {{"qty", "POSITION QUANTITY", "change the quantity of a position", 2, 2},
         &CommandLine::changeCount},
        {{"storno", "POSITION", "storno a position, after a question", 1, 1}, &CommandLine::storno},
        {{"split", "POSITION PART...", "take parts off as new positions; the rest stays", 2,
          Usage::any},
         &CommandLine::split},
        {{"unite", "POSITION POSITION...", "put positions of one article into the first", 2,
          Usage::any},
         &CommandLine::unite},
        {{"order", "NUMBER", "attach an order", 1, 1}, &CommandLine::order},
        {{"softcheck", "NUMBER", "add a soft-check", 1, 1}, &CommandLine::softCheck},
        {{"subtotal", "", "go to subtotal", 0, 0}, &CommandLine::subtotal},
        {{"pay", "[MONEY]", "pay and close, from subtotal or at once; exactly if no money is named",
          0, 1},
         &CommandLine::pay},
        {{"cancel", "", "cancel the receipt, after a question", 0, 0}, &CommandLine::cancel},
        {{"answer", "yes|no...", "answer the next questions in advance", 1, Usage::any},
         &CommandLine::queueAnswer,
         true,
         true},
        {{"show", "", "show the receipt", 0, 0}, &CommandLine::show, true},
        {{"articles", "[TEXT]", "list the catalogue, or the articles that contain a text", 0, 1},
         &CommandLine::articles,
         true},
        {{"log", "", "show what the plugin logged for the last command", 0, 0},
         &CommandLine::log,
         true,
         true},
        {{"say", "TEXT...", "print a text", 0, Usage::any}, &CommandLine::say, true, true},
        {{"set", "KEY VALUE", "change a setting; the till is switched off and on for it", 2, 2},
         &CommandLine::set,
         false,
         true},
        {{"restart", "", "switch the till off and on; the receipt in hand is taken up again", 0, 0},
         &CommandLine::restart,
         false,
         true},
        {{"expect", "WHAT...", "check what happened or what is; see 'help expect'", 1, Usage::any},
         &CommandLine::expect,
         true},
        {{"help", "[COMMAND]", "list the commands, or explain one", 0, 1},
         &CommandLine::help,
         true,
         true},
        {{"quit", "", "leave; the receipt in hand is kept", 0, 0}, &CommandLine::quit, true, true},
    };
    return table;
}

CommandLine::CommandLine(CashDesk &desk, Notes &notes, const Translator &translator, Style style,
                         Front front)
    : m_desk(desk)
    , m_notes(notes)
    , m_translator(translator)
    , m_view(translator, style)
    , m_front(std::move(front))
{
    m_notes.listen(this, [this](const QJsonObject &note) { hear(note); });
    m_desk.setFront([this](const tr::Tr &question, const tr::Tr &confirm,
                           const tr::Tr &cancel) { return answer(question, confirm, cancel); },
                    [this](const tr::Tr &message) {
                        m_heard.messages.append(message);
                        print(m_view.renderMessage(message));
                    });
}

CommandLine::~CommandLine()
{
    m_desk.setFront({}, {});
    m_notes.forget(this);
}

Outcome CommandLine::run(const QString &line)
{
    m_hasTouchedReceipt = false;
    const std::optional<QStringList> words = splitWords(line);
    if (!words)
        return Outcome::mistake("a quote is not closed");
    if (words->isEmpty())
        return Outcome::done();
    m_notes.add("command", {{"text", line.trimmed()}});
    Outcome outcome;
    {
        const Notes::Nesting inside(m_notes);
        outcome = runWords(*words);
    }
    static const QStringList names{"done", "refused", "mistake", "failed"};
    m_notes.add("outcome", {{"outcome", names[outcome.kind]}, {"text", outcome.text}});
    return outcome;
}

Outcome CommandLine::runWords(const QStringList &words)
{
    const Command *const command = rowCalled(words.constFirst(), commands());
    if (!command)
        return Outcome::mistake("no command \"" + words.constFirst() + "\"; try 'help'");
    if (!command->usage.allows(words.mid(1)))
        return Outcome::mistake("usage: " + command->usage.text());
    if (!m_desk.isOn() && !command->worksOff)
        return Outcome::failed("the till is off; 'restart' switches it on");
    if (command->isWatching)
        return (this->*command->run)(words.mid(1));
    m_heard = {};
    return (this->*command->run)(words.mid(1));
}

QString CommandLine::leftOver() const
{
    if (!m_unanswered.isEmpty())
        return "no answer was given to: " + m_unanswered.join(", ");
    if (!m_answers.isEmpty())
        return QString("%1 answer(s) were given that nobody asked for").arg(m_answers.size());
    return {};
}

bool CommandLine::answer(const tr::Tr &question, const tr::Tr &confirm, const tr::Tr &cancel)
{
    m_heard.questions.append(question);
    const QString text = m_view.renderQuestion(question, confirm, cancel);
    if (m_answers.isEmpty() && m_front.ask)
        return m_front.ask(text);
    const bool isAnswered = !m_answers.isEmpty();
    const bool answer = isAnswered && m_answers.takeFirst();
    if (!isAnswered)
        m_unanswered.append(copied(question.key()));
    print(text + "  → " + m_translator.text(answer ? confirm : cancel));
    return answer;
}

void CommandLine::hear(const QJsonObject &note)
{
    static const QStringList touching{"action", "takeup"};
    const QString kind = note.value("kind").toString();
    m_hasTouchedReceipt = m_hasTouchedReceipt || touching.contains(kind);
    if (kind == QLatin1String("log"))
        m_heard.log.append(note.value("text").toString());
}

QString CommandLine::renderReceipt() const
{
    if (!m_desk.isOn() || !m_desk.cashRegister().receipt())
        return {};
    const Register &cashRegister = m_desk.cashRegister();
    return m_view.render(*cashRegister.receipt(), cashRegister.taraState(),
                         cashRegister.taraControl());
}

Outcome CommandLine::help(const QStringList &words)
{
    if (words.isEmpty()) {
        for (const Command &command : commands())
            print(QString("  %1 %2")
                      .arg(command.usage.name + ' ' + command.usage.words, -28)
                      .arg(command.usage.help));
        return Outcome::done();
    }
    const Command *const command = rowCalled(words[0], commands());
    if (!command)
        return Outcome::mistake("no command \"" + words[0] + "\"; try 'help'");
    print(command->usage.text() + "\n  " + command->usage.help);
    if (command->usage.name == "expect")
        print(Expectations::help());
    return Outcome::done();
}

QStringList CommandLine::completions(const QStringList &words) const
{
    QStringList candidates;
    if (words.size() <= 1) {
        for (const Command &command : commands())
            candidates.append(command.usage.name);
    } else if (words[0] == "add") {
        const auto all = m_desk.catalogue().articles();
        for (const auto &article : all)
            candidates.append(article->data.code);
    } else if (words[0] == "help") {
        for (const Command &command : commands())
            candidates.append(command.usage.name);
    } else if (words[0] == "open") {
        candidates = {"sale", "return"};
    } else if (words[0] == "answer") {
        candidates = {"yes", "no"};
    } else if (const auto receipt = m_desk.isOn() ? m_desk.cashRegister().receipt() : nullptr) {
        const auto positions = receipt->getPositionList();
        for (const auto &position : positions)
            candidates.append(QString::number(position->getPosnum()));
    }
    return candidates.filter(QRegularExpression(
        "^" + QRegularExpression::escape(words.isEmpty() ? QString() : words.constLast()),
        QRegularExpression::CaseInsensitiveOption));
}

} // namespace till
