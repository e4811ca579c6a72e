#include "till/script/CommandLine.h"

#include "till/language/TillMessages.h"
#include "till/words/RegisterWords.h"
#include "till/words/Words.h"

#include <QtCore/QMap>

#include <utility>

namespace till {

namespace {

//! \a words with those that are commands spelled as the tables have them.
QStringList canonical(QStringList words)
{
    static const QMap<QString, QString> alike{{"exit", "quit"}, {"q", "quit"}, {"?", "help"}};
    words[0] = words[0].toLower();
    words[0] = alike.value(words[0], words[0]);
    if (words[0] == "expect" && words.size() > 1)
        words[1] = words[1].toLower();
    return words;
}

Outcome tillIsOff()
{
    return {Outcome::Failed, told("till", "the till is off; 'restart' switches it on"), {}};
}

} // namespace

//! A row of the table of the script's own commands.
struct CommandLine::Row
{
    Usage usage;
    Outcome (CommandLine::*run)(const QStringList &words); //!< given the words behind the name
    bool isWatching = false; //!< looks at what the command before it did
    bool worksOff = false;   //!< needs no till that is switched on
};

const QList<CommandLine::Row> &CommandLine::ownRows()
{
    static const QList<Row> table{
        {{"answer", verbatim("yes|no..."), told("till", "answer the next questions in advance"), 1,
          Usage::any},
         &CommandLine::queueAnswer,
         true,
         true},
        {{"show", {}, told("till", "show the receipt"), 0, 0}, &CommandLine::showReceipt, true},
        {{"articles", told("till", "[TEXT]"),
          told("till", "list the catalogue, or the articles that contain a text"), 0, 1},
         &CommandLine::articles,
         true},
        {{"log", {}, told("till", "show what the plugin logged for the last command"), 0, 0},
         &CommandLine::log,
         true,
         true},
        {{"say", told("till", "TEXT..."), told("till", "print a text"), 0, Usage::any},
         &CommandLine::say,
         true,
         true},
        {{"set", told("till", "[KEY VALUE]"),
          told("till", "change a setting, for which the till is switched off and on; or list all"),
          0, 2},
         &CommandLine::set,
         false,
         true},
        {{"restart",
          {},
          told("till", "switch the till off and on; the open receipt is taken up again"),
          0,
          0},
         &CommandLine::restart,
         false,
         true},
        {{"expect", told("till", "WHAT..."),
          told("till", "check what happened or what is; see 'help expect'"), 1, Usage::any},
         &CommandLine::expect,
         true},
        {{"save", told("till", "FILE"),
          told("till", "write this receipt as a script, which expects what it did"), 1, 1},
         &CommandLine::save,
         true,
         true},
        {{"include", told("till", "FILE"),
          told("till", "in a script: carry out the commands of another file"), 1, 1},
         &CommandLine::include,
         true,
         true},
        {{"help", told("till", "[COMMAND]"), told("till", "list the commands, or explain one"), 0,
          1},
         &CommandLine::help,
         true,
         true},
        {{"quit", {}, told("till", "leave; the open receipt is kept"), 0, 0},
         &CommandLine::quit,
         true,
         true},
    };
    return table;
}

CommandLine::CommandLine(CashDesk &desk, Notes &notes, const Translator &translator, Style style,
                         Person person)
    : m_desk(desk)
    , m_notes(notes)
    , m_translator(translator)
    , m_view(translator, style)
    , m_person(std::move(person))
    , m_answers(*this,
                [this](const Question &question, bool answer) { printAnswered(question, answer); })
    , m_notesHeard(notes.subscribe([this](const QJsonObject &note) { hear(note); }))
    , m_receiptSeen(desk.onReceiptChanged([this] { m_hasTouchedReceipt = true; }))
{
    if (m_person.maySave)
        m_course.emplace(notes, desk.isOn() ? desk.describeStart() : QJsonObject());
}

Outcome CommandLine::run(const QString &line)
{
    if (m_desk.isBusy())
        return Outcome::busy();
    m_hasTouchedReceipt = false;
    const std::optional<QStringList> words = splitWords(line);
    if (!words)
        return Outcome::mistake(told("till", "a quote is not closed"));
    if (words->isEmpty())
        return Outcome::done();
    const InstalledFront installed(m_desk.front(), m_answers);
    return runWords(*words, line.trimmed());
}

Outcome CommandLine::runWords(const QStringList &typed, const QString &text)
{
    const QStringList words = canonical(typed);
    if (rowCalled(words[0], registerWords()))
        return carryOut(words, text);
    // What is expected of a command is told as that command; what does not hold, behind it.
    if (words[0] == "expect" && Expectations::isOfCommand(words.mid(1))) {
        const Outcome outcome = expect(words.mid(1));
        return outcome ? outcome : tellCommand(m_notes, text, [&] { return outcome; });
    }
    return tellCommand(m_notes, text, [&] { return runOwn(words); });
}

Outcome CommandLine::carryOut(const QStringList &words, const QString &text)
{
    m_heard = {};
    const ReadCommand read = readCommand(words);
    if (!read)
        return tellCommand(m_notes, text, [&] { return read.error(); });
    if (!m_desk.isOn())
        return tellCommand(m_notes, text, tillIsOff);
    const Outcome outcome = cashRegister().carryOut(*read);
    if (outcome && outcome.change)
        print("  " + m_translator.text(messages::tillChange()).arg(toText(*outcome.change)));
    return outcome;
}

Outcome CommandLine::runOwn(const QStringList &words)
{
    const Row *const row = rowCalled(words[0], ownRows());
    if (!row)
        return unknownCommand(words[0], commandNames());
    if (!row->usage.allows(words.mid(1)))
        return wrongWords(row->usage);
    if (!m_desk.isOn() && !row->worksOff)
        return tillIsOff();
    if (!row->isWatching)
        m_heard = {};
    return (this->*row->run)(words.mid(1));
}

QString CommandLine::textOf(const Outcome &outcome) const
{
    Outcome ended = outcome;
    if (outcome.kind == Outcome::Declined
        && m_heard.lacksAnswer) // here one may be typed in advance
        ended.reason.pattern =
            told("till", "nobody answered \"%Q\"; 'answer yes' before it would take it").pattern;
    const QString why = ended.text(m_translator).replace('\n', ' ');
    if (!outcome.isRefusal())
        return forTerminal(why);
    return forTerminal(m_translator.text(why.isEmpty() ? told("till", "refused")
                                                       : told("till", "refused: %1").with({why})));
}

bool CommandLine::hasShown(const Outcome &outcome) const
{
    return outcome.isRefusal() && !outcome.missing
           && m_heard.messages.contains(outcome.reason.pattern);
}

Outcome CommandLine::checkAnswers() const
{
    if (!m_unanswered.isEmpty()) // all of which are named, however many
        return {Outcome::Mistake,
                told("till", "no answer was given to: %1").with({m_unanswered.join(", ")}),
                {}};
    if (m_answers.waiting() > 0)
        return Outcome::mistake(told("till", "%1 answer(s) were given that nobody asked for")
                                    .with({QString::number(m_answers.waiting())}));
    return Outcome::done();
}

bool CommandLine::ask(const Question &question)
{
    if (m_person.ask)
        return m_person.ask(m_view.renderQuestion(question), {m_translator.text(question.confirm),
                                                              m_translator.text(question.cancel)});
    m_unanswered.append(question.text.key());
    m_heard.lacksAnswer = true;
    printAnswered(question, false);
    return false;
}

void CommandLine::show(const tr::Tr &message)
{
    m_person.print(m_view.renderMessage(message));
}

void CommandLine::printAnswered(const Question &question, bool answer) const
{
    const tr::Tr &taken = answer ? question.confirm : question.cancel;
    m_person.print(m_view.renderQuestion(question) + "  → "
                   + forTerminal(m_translator.text(taken)));
}

void CommandLine::hear(const QJsonObject &note)
{
    const QString kind = note.value("kind").toString();
    const QString text = note.value("text").toString();
    if (kind == QLatin1String("log"))
        m_heard.log.append(text);
    if (kind == QLatin1String("loyalty"))
        ++m_heard.loyalty;
    if (kind == QLatin1String("message"))
        m_heard.messages.append({note.value("key").toString(), text});
    if (kind == QLatin1String("question"))
        m_heard.questions.append({note.value("key").toString(), text});
}

QString CommandLine::renderReceipt() const
{
    if (!m_desk.isOn() || !m_desk.cashRegister().receipt())
        return {};
    const Register &cashRegister = m_desk.cashRegister();
    return m_view.render(*cashRegister.receipt(), cashRegister.taraState(),
                         cashRegister.taraControl());
}

bool CommandLine::hasOpenReceipt() const
{
    const auto receipt = m_desk.isOn() ? m_desk.cashRegister().receipt() : nullptr;
    return receipt && isUnfinished(receipt->state());
}

QList<Usage> CommandLine::usages()
{
    QList<Usage> usages;
    for (const RegisterWords &row : registerWords())
        usages.append(row.usage);
    for (const Row &row : ownRows())
        usages.append(row.usage);
    return usages;
}

Outcome CommandLine::help(const QStringList &words)
{
    const QString name = words.isEmpty() ? QString() : canonical(words)[0];
    bool isKnown = name.isEmpty();
    const QList<Usage> all = usages();
    for (const Usage &usage : all) {
        const QString help = m_translator.text(usage.help);
        if (name.isEmpty())
            m_person.print(m_view.renderBehind("  " + usage.text(m_translator), help, 31));
        else if (usage.name == name)
            print(usage.text(m_translator) + "\n  " + help);
        isKnown = isKnown || usage.name == name;
    }
    if (name == "expect")
        print(Expectations::help(m_translator));
    return isKnown ? Outcome::done() : unknownCommand(name, commandNames());
}

} // namespace till
