#include "till/script/CommandLine.h"

#include "till/language/TillMessages.h"
#include "till/script/Expectations.h"
#include "till/script/Words.h"

#include <QtCore/QRegularExpression>

#include <algorithm>
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
    QString name;
    QString usage; //!< the words behind the name
    QString help;
    int atLeast; //!< number of words behind the name
    int atMost;
    Outcome (CommandLine::*run)(const QStringList &words); //!< given the words behind the name
    bool isWatching = false; //!< looks at what the command before it did
    bool worksOff = false;   //!< needs no till that is switched on
};

const QList<CommandLine::Command> &CommandLine::commands()
{
    constexpr int any = 1000;
    static const QList<Command> table{
        {"open", "[sale|return]", "open a receipt", 0, 1, &CommandLine::open},
        {"add", "ARTICLE [QUANTITY]", "add an article as a new position; quantity 1 if none", 1, 2,
         &CommandLine::add},
        {"qty", "POSITION QUANTITY", "change the quantity of a position", 2, 2,
         &CommandLine::changeCount},
        {"storno", "POSITION", "storno a position, after a question", 1, 1, &CommandLine::storno},
        {"split", "POSITION PART...", "take parts off as new positions; the rest stays", 2, any,
         &CommandLine::split},
        {"unite", "POSITION POSITION...", "put positions of one article into the first", 2, any,
         &CommandLine::unite},
        {"order", "NUMBER", "attach an order", 1, 1, &CommandLine::order},
        {"softcheck", "NUMBER", "add a soft-check", 1, 1, &CommandLine::softCheck},
        {"subtotal", "", "go to subtotal", 0, 0, &CommandLine::subtotal},
        {"pay", "[MONEY]", "pay and close, from subtotal or at once; exactly if no money is named",
         0, 1, &CommandLine::pay},
        {"cancel", "", "cancel the receipt, after a question", 0, 0, &CommandLine::cancel},
        {"answer", "yes|no...", "answer the next questions in advance", 1, any,
         &CommandLine::queueAnswer, true, true},
        {"show", "", "show the receipt", 0, 0, &CommandLine::show, true},
        {"articles", "[TEXT]", "list the catalogue, or the articles that contain a text", 0, 1,
         &CommandLine::articles, true},
        {"log", "", "show what the plugin logged for the last command", 0, 0, &CommandLine::log,
         true, true},
        {"say", "TEXT...", "print a text", 0, any, &CommandLine::say, true, true},
        {"set", "KEY VALUE", "change a setting; the till is switched off and on for it", 2, 2,
         &CommandLine::set, false, true},
        {"restart", "", "switch the till off and on; the receipt in hand is taken up again", 0, 0,
         &CommandLine::restart, false, true},
        {"expect", "WHAT...", "check what happened or what is; see 'help expect'", 1, any,
         &CommandLine::expect, true},
        {"help", "[COMMAND]", "list the commands, or explain one", 0, 1, &CommandLine::help, true,
         true},
        {"quit", "", "leave; the receipt in hand is kept", 0, 0, &CommandLine::quit, true, true},
    };
    return table;
}

const CommandLine::Command *CommandLine::find(const QString &name)
{
    const auto &table = commands();
    const auto found = std::find_if(table.cbegin(), table.cend(),
                                    [&name](const Command &c) { return c.name == name; });
    return found == table.cend() ? nullptr : &*found;
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
    const Command *const command = find(words.constFirst());
    if (!command)
        return Outcome::mistake("no command \"" + words.constFirst() + "\"; try 'help'");
    const qsizetype given = words.size() - 1;
    if (given < command->atLeast || given > command->atMost)
        return Outcome::mistake("usage: " + (command->name + ' ' + command->usage).trimmed());
    if (!m_desk.isOn() && !command->worksOff)
        return Outcome::failed("the till is off; 'restart' switches it on");
    if (command->isWatching)
        return (this->*command->run)(words.mid(1));
    m_heard = {};
    const Outcome outcome = (this->*command->run)(words.mid(1));
    m_heard.outcome = outcome;
    return outcome;
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
    if (note.value("kind").toString() == QLatin1String("log"))
        m_heard.log.append(note.value("text").toString());
}

Outcome CommandLine::open(const QStringList &words)
{
    const QString type = words.value(0, "sale");
    if (type != "sale" && type != "return")
        return notOneOf(type, {"sale", "return"});
    return cashRegister().open(type == "sale" ? Document::Sale : Document::Return);
}

Outcome CommandLine::add(const QStringList &words)
{
    const QString quantity = words.value(1, "1");
    const std::optional<double> count = parseQuantity(quantity);
    return count ? cashRegister().add(words[0], *count) : notANumber(quantity);
}

Outcome CommandLine::changeCount(const QStringList &words)
{
    const std::optional<int> posnum = parsePosnum(words[0]);
    if (!posnum)
        return notAPosition(words[0]);
    const std::optional<double> count = parseQuantity(words[1]);
    return count ? cashRegister().changeCount(*posnum, *count) : notANumber(words[1]);
}

Outcome CommandLine::storno(const QStringList &words)
{
    const std::optional<int> posnum = parsePosnum(words[0]);
    return posnum ? cashRegister().storno(*posnum) : notAPosition(words[0]);
}

Outcome CommandLine::split(const QStringList &words)
{
    const std::optional<int> posnum = parsePosnum(words[0]);
    if (!posnum)
        return notAPosition(words[0]);
    QList<double> parts;
    for (const QString &word : words.mid(1)) {
        const std::optional<double> part = parseQuantity(word);
        if (!part)
            return notANumber(word);
        parts.append(*part);
    }
    return cashRegister().split(*posnum, parts);
}

Outcome CommandLine::unite(const QStringList &words)
{
    QList<int> posnums;
    for (const QString &word : words) {
        const std::optional<int> posnum = parsePosnum(word);
        if (!posnum)
            return notAPosition(word);
        posnums.append(*posnum);
    }
    return cashRegister().unite(posnums);
}

Outcome CommandLine::order(const QStringList &words)
{
    return cashRegister().attachOrder(words[0]);
}

Outcome CommandLine::softCheck(const QStringList &words)
{
    return cashRegister().addSoftCheck(words[0]);
}

Outcome CommandLine::subtotal(const QStringList &words)
{
    Q_UNUSED(words)
    return cashRegister().subtotal();
}

Outcome CommandLine::pay(const QStringList &words)
{
    if (words.isEmpty())
        return cashRegister().pay(std::nullopt);
    const std::optional<Kopecks> tendered = parseMoney(words[0]);
    if (!tendered)
        return notMoney(words[0]);
    const Outcome outcome = cashRegister().pay(tendered);
    if (outcome) {
        const Kopecks change = *tendered - cashRegister().receipt()->total();
        print("  " + m_translator.text(messages::tillChange()).arg(toText(change)));
    }
    return outcome;
}

Outcome CommandLine::cancel(const QStringList &words)
{
    Q_UNUSED(words)
    return cashRegister().cancel();
}

Outcome CommandLine::queueAnswer(const QStringList &words)
{
    for (const QString &word : words) {
        if (word != "yes" && word != "no")
            return notOneOf(word, {"yes", "no"});
    }
    for (const QString &word : words)
        m_answers.append(word == "yes");
    return Outcome::done();
}

QString CommandLine::renderReceipt() const
{
    if (!m_desk.isOn() || !m_desk.cashRegister().receipt())
        return {};
    const Register &cashRegister = m_desk.cashRegister();
    return m_view.render(*cashRegister.receipt(), cashRegister.taraState(),
                         cashRegister.taraControl());
}

Outcome CommandLine::show(const QStringList &words)
{
    Q_UNUSED(words)
    if (!cashRegister().receipt())
        return Outcome::mistake("no receipt was opened");
    print(renderReceipt());
    return Outcome::done();
}

Outcome CommandLine::articles(const QStringList &words)
{
    const QString wanted = words.value(0);
    const auto all = m_desk.catalogue().articles();
    for (const auto &article : all) {
        const ArticleData &data = article->data;
        if (data.code.contains(wanted, Qt::CaseInsensitive)
            || data.name.contains(wanted, Qt::CaseInsensitive))
            print(
                QString("%1 %2 %3").arg(data.code, -10).arg(toText(data.price), 10).arg(data.name));
    }
    return Outcome::done();
}

Outcome CommandLine::log(const QStringList &words)
{
    Q_UNUSED(words)
    for (const QString &line : std::as_const(m_heard.log))
        print("  " + line);
    return Outcome::done();
}

Outcome CommandLine::say(const QStringList &words)
{
    print("\n" + words.join(' '));
    return Outcome::done();
}

Outcome CommandLine::set(const QStringList &words)
{
    const QString error = m_desk.set(words[0], words[1]);
    return error.isEmpty() ? Outcome::done() : Outcome::failed(error);
}

Outcome CommandLine::restart(const QStringList &words)
{
    Q_UNUSED(words)
    m_desk.stop();
    const QString error = m_desk.start();
    return error.isEmpty() ? Outcome::done() : Outcome::failed(error);
}

Outcome CommandLine::expect(const QStringList &words)
{
    return Expectations(*this).check(words);
}

Outcome CommandLine::help(const QStringList &words)
{
    if (words.isEmpty()) {
        for (const Command &command : commands())
            print(
                QString("  %1 %2").arg(command.name + ' ' + command.usage, -28).arg(command.help));
        return Outcome::done();
    }
    const Command *const command = find(words[0]);
    if (!command)
        return Outcome::mistake("no command \"" + words[0] + "\"; try 'help'");
    print((command->name + ' ' + command->usage).trimmed() + "\n  " + command->help);
    if (command->name == "expect")
        print(Expectations::help());
    return Outcome::done();
}

Outcome CommandLine::quit(const QStringList &words)
{
    Q_UNUSED(words)
    m_hasQuit = true;
    return Outcome::done();
}

QStringList CommandLine::completions(const QStringList &words) const
{
    QStringList candidates;
    if (words.size() <= 1) {
        for (const Command &command : commands())
            candidates.append(command.name);
    } else if (words[0] == "add") {
        const auto all = m_desk.catalogue().articles();
        for (const auto &article : all)
            candidates.append(article->data.code);
    } else if (words[0] == "help") {
        for (const Command &command : commands())
            candidates.append(command.name);
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
