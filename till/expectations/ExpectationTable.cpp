// What can be expected: the table of it, and how it is told.

#include "till/expectations/Expectations.h"

#include "till/language/Nearest.h"
#include "till/words/Usage.h"
#include "till/words/Words.h"

namespace till {

//! A row of the table of what can be expected.
struct Expectations::Row
{
    Usage usage;
    ExpectedForm form; //!< of the words behind the name
    Checker check;     //!< given those words, in that form
};

namespace {

using Kind = ExpectedForm::Kind;

Outcome unknownExpectation(const QString &word, const QStringList &known)
{
    const QString meant = nearest(word, known);
    if (meant.isEmpty())
        return Outcome::mistake(
            told("till", "\"%1\" cannot be expected; try 'help expect'").with({word}));
    return Outcome::mistake(
        told("till", "\"%1\" cannot be expected; did you mean '%2'?").with({word, meant}));
}

QStringList ends()
{
    return {"accepted", "refused", "mistake"};
}

bool isEnd(const QString &word)
{
    return ends().contains(word);
}

} // namespace

const QList<Expectations::Row> &Expectations::rows()
{
    static const QList<Row> table{
        {{"position",
          told("till", "N none|stornoed|live|quantity Q|base Q|sum MONEY|article CODE|group "
                       "none|FIRST..."),
          told("till", "a position, and what is in it"), 2, Usage::any},
         {{Kind::PositionNumber},
          {{"stornoed"},
           {"live"},
           {"quantity", {Kind::Quantity}},
           {"base", {Kind::Quantity}},
           {"sum", {Kind::Money}},
           {"article", {Kind::Code}},
           {"group", {Kind::PositionOrNone}}},
          true},
         &Expectations::position},
        {{"positions", told("till", "COUNT"), told("till", "how many positions are not stornoed"),
          1, 1},
         {{Kind::Count}},
         &Expectations::positions},
        {{"tara", told("till", "N none|capacity C|free F..."),
          told("till", "what is noted of a tara position"), 2, Usage::any},
         {{Kind::PositionNumber},
          {{"capacity", {Kind::Quantity}}, {"free", {Kind::Quantity}}},
          true},
         &Expectations::tara},
        {{"goods", told("till", "N none|in TARA AMOUNT...|unplaced AMOUNT..."),
          told("till", "where the goods of a position are"), 2, Usage::any},
         {{Kind::PositionNumber},
          {{"in", {Kind::PositionNumber, Kind::Quantity}}, {"unplaced", {Kind::Quantity}}},
          true},
         &Expectations::goods},
        {{"records", told("till", "TARAS GOODS"),
          told("till", "how many records there are of each kind"), 2, 2},
         {{Kind::Count, Kind::Count}},
         &Expectations::records},
        {{"total", told("till", "MONEY"), told("till", "the sum of the receipt"), 1, 1},
         {{Kind::Money}},
         &Expectations::total},
        {{"message", told("till", "none|KEY|TEXT"),
          told("till", "a message that the last command showed"), 1, Usage::any},
         {{Kind::Text}},
         &Expectations::message},
        {{"question", told("till", "none|KEY|TEXT"),
          told("till", "a question that the last command asked"), 1, Usage::any},
         {{Kind::Text}},
         &Expectations::question},
        {{"loyalty", told("till", "COUNT"),
          told("till", "how often the last command told the loyalty system of the receipt"), 1, 1},
         {{Kind::Count}},
         &Expectations::loyalty},
        {{"log", told("till", "none|TEXT"),
          told("till", "a line that the plugin logged for the last command"), 1, Usage::any},
         {{Kind::Text}},
         &Expectations::log},
        {{"state", verbatim("none|open|subtotal|closed|cancelled"),
          told("till", "how far the receipt is"), 1, 1},
         {{}, {{"open"}, {"subtotal"}, {"closed"}, {"cancelled"}}, true},
         &Expectations::state},
        {{"control", verbatim("active|suspended|none"),
          told("till", "whether the plugin watches the receipt"), 1, 1},
         {{}, {{"active"}, {"suspended"}}, true},
         &Expectations::control},
    };
    return table;
}

QString Expectations::help(const Translator &translator)
{
    QStringList lines{"  expect accepted|refused|mistake "
                          + translator.text(told("till", "COMMAND...")),
                      "      " + translator.text(told("till", "carry out a command that ends so"))};
    for (const Row &row : rows())
        lines +=
            {"  expect " + row.usage.text(translator), "      " + translator.text(row.usage.help)};
    return lines.join('\n');
}

QStringList Expectations::names()
{
    QStringList names = ends();
    for (const Row &row : rows())
        names.append(row.usage.name);
    return names;
}

std::optional<ExpectedForm::Next> Expectations::next(const QStringList &words)
{
    const Row *const row = rowCalled(words[0], rows());
    if (!row || words.size() > row->usage.atMost)
        return std::nullopt;
    const auto next = row->form.behind(words.mid(1), {});
    return next ? std::optional(*next) : std::nullopt;
}

bool Expectations::isOfCommand(const QStringList &words)
{
    return words.size() > 1 && isEnd(words[0]) && words[1] != "expect";
}

Outcome Expectations::check(const QStringList &words)
{
    if (isEnd(words[0]))
        return command(words[0], words.mid(1));
    const Row *const row = rowCalled(words[0], rows());
    if (!row)
        return unknownExpectation(words[0], names());
    const Outcome usage = wrongWords({"expect " + row->usage.name, row->usage.words, {}, 0, 0});
    if (!row->usage.allows(words.mid(1)))
        return usage;
    const auto next = row->form.behind(words.mid(1), usage);
    if (!next)
        return next.error();
    return next->isWhole ? (this->*row->check)(words.mid(1)) : usage;
}

} // namespace till
