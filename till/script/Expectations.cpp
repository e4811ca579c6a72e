#include "till/script/Expectations.h"

#include "till/language/Nearest.h"
#include "till/script/Comparison.h"
#include "till/script/Usage.h"
#include "till/script/Words.h"

#include <algorithm>

namespace till {

//! A row of the table of what can be expected.
struct Expectations::Row
{
    Usage usage;
    Checker check; //!< given the words behind the name
};

namespace {

QString keysOf(const QList<tr::Tr> &texts)
{
    QStringList keys;
    for (const tr::Tr &text : texts)
        keys.append(text.key());
    return keys.isEmpty() ? QStringLiteral("none") : keys.join(", ");
}

//! Whether \a expected is the key or the Russian text of one of \a said; "none" means that none
//! was.
Outcome checkSaid(const QString &what, const QStringList &words, const QList<tr::Tr> &said)
{
    if (isNone(words))
        return said.isEmpty() ? Outcome::done() : differs(what, "none", keysOf(said));
    const QString expected = words.join(' ');
    const bool found = std::any_of(said.cbegin(), said.cend(), [&](const tr::Tr &text) {
        return text.key() == expected
               || text.text().split('\n').join(' ') == expected.split('\n').join(' ');
    });
    return found ? Outcome::done() : differs(what, "\"" + brief(expected) + "\"", keysOf(said));
}

QString stateName(const Receipt *receipt)
{
    static const QStringList names{"open", "subtotal", "closed", "cancelled"};
    return receipt ? names[static_cast<int>(receipt->state())] : QStringLiteral("none");
}

Outcome checkPart(const Position &position, const QString &part, const QString &value)
{
    const QString what = QString("position %1 %2").arg(position.getPosnum()).arg(part);
    if (part == "quantity")
        return compareQuantity(what, value, position.getCquant());
    if (part == "base")
        return compareQuantity(what, value, position.getBquant());
    if (part == "sum")
        return compareMoney(what, value, position.sum());
    if (part == "article")
        return compare(what, value, position.article().code);
    return notOneOf(part, {"quantity", "base", "sum", "article", "stornoed", "live"});
}

Outcome unknownExpectation(const QString &word, const QStringList &known)
{
    const QString meant = nearest(word, known);
    if (meant.isEmpty())
        return Outcome::mistake(
            told("till", "\"%1\" cannot be expected; try 'help expect'").with({word}));
    return Outcome::mistake(
        told("till", "\"%1\" cannot be expected; did you mean '%2'?").with({word, meant}));
}

//! How a command ended, in the word by which "expect" is told so; a failure cannot be expected.
QString endOf(const Outcome &outcome)
{
    static const QStringList words{"accepted", "refused",    "refused",        "refused",
                                   "mistake",  "not stored", "not as expected"};
    return words[outcome.kind];
}

QStringList ends()
{
    return {"accepted", "refused", "mistake"};
}

bool isEnd(const QString &word)
{
    return ends().contains(word);
}

//! What the goods hold in the tara at \a posnum.
double amountIn(const TaraState &state, const GoodsUse &goods, int posnum)
{
    const TaraUse *const tara = state.tara(posnum);
    return tara ? goods.used.value(tara->id, 0.0) : 0.0;
}

double unplaced(const GoodsUse &goods, const Position *position)
{
    double left = position ? position->getBquant() : 0.0;
    for (const double used : goods.used)
        left -= used;
    return left;
}

} // namespace

const QList<Expectations::Row> &Expectations::rows()
{
    static const QList<Row> table{
        {{"position",
          told("till", "N none|stornoed|live|quantity Q|base Q|sum MONEY|article CODE..."),
          told("till", "a position, and what is in it"), 2, Usage::any},
         &Expectations::position},
        {{"positions", told("till", "COUNT"), told("till", "how many positions are not stornoed"),
          1, 1},
         &Expectations::positions},
        {{"tara", told("till", "N none|capacity C|free F..."),
          told("till", "what is noted of a tara position"), 2, Usage::any},
         &Expectations::tara},
        {{"goods", told("till", "N none|in TARA AMOUNT...|unplaced AMOUNT..."),
          told("till", "where the goods of a position are"), 2, Usage::any},
         &Expectations::goods},
        {{"records", told("till", "TARAS GOODS"),
          told("till", "how many records there are of each kind"), 2, 2},
         &Expectations::records},
        {{"total", told("till", "MONEY"), told("till", "the sum of the receipt"), 1, 1},
         &Expectations::total},
        {{"message", told("till", "none|KEY|TEXT"),
          told("till", "a message that the last command showed"), 1, Usage::any},
         &Expectations::message},
        {{"question", told("till", "none|KEY|TEXT"),
          told("till", "a question that the last command asked"), 1, Usage::any},
         &Expectations::question},
        {{"log", told("till", "none|TEXT"),
          told("till", "a line that the plugin logged for the last command"), 1, Usage::any},
         &Expectations::log},
        {{"state", verbatim("none|open|subtotal|closed|cancelled"),
          told("till", "how far the receipt is"), 1, 1},
         &Expectations::state},
        {{"control", verbatim("active|suspended|none"),
          told("till", "whether the plugin watches the receipt"), 1, 1},
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
    if (!row->usage.allows(words.mid(1)))
        return wrongWords({"expect " + row->usage.name, row->usage.words, {}, 0, 0});
    return (this->*row->check)(words.mid(1));
}

Outcome Expectations::command(const QString &end, const QStringList &words) const
{
    if (words.isEmpty())
        return Outcome::mistake(told("till", "which command?"));
    if (words[0] == "expect")
        return Outcome::mistake(told("till", "an expectation cannot be expected"));
    const Outcome outcome = m_carryOut(words);
    const QString found = endOf(outcome);
    if (found == end) {
        // A refusal was shown; a mistake was not.
        return outcome.isRefusal() ? Outcome::done() : Outcome::done(m_textOf(outcome));
    }
    const QString why = m_textOf(outcome);
    if (outcome.isRefusal())
        return differs(words.join(' '), end, why); // which begins with what was found
    return differs(words.join(' '), end, why.isEmpty() ? found : found + ": " + why);
}

Outcome Expectations::position(const QStringList &words) const
{
    const std::optional<int> posnum = parsePosnum(words[0]);
    if (!posnum)
        return notAPosition(words[0]);
    const auto receipt = cashRegister().receipt();
    const auto line = receipt ? receipt->line(*posnum) : nullptr;
    const QString what = "position " + words[0];
    if (isNone(words.mid(1)))
        return line ? differs(what, "none", line->article().code) : Outcome::done();
    if (!line)
        return differs(what, words.mid(1).join(' '), "none");
    for (qsizetype i = 1; i < words.size(); ++i) {
        if (words[i] == "stornoed" || words[i] == "live") {
            const QString found = line->isStornoed() ? "stornoed" : "live";
            if (found != words[i])
                return differs(what, words[i], found);
            continue;
        }
        const Outcome checked = checkPart(*line, words[i], words.value(i + 1));
        if (!checked)
            return checked;
        ++i;
    }
    return Outcome::done();
}

Outcome Expectations::positions(const QStringList &words) const
{
    const auto receipt = cashRegister().receipt();
    return compare("positions", words[0],
                   QString::number(receipt ? receipt->getPositionList().size() : 0));
}

Outcome Expectations::tara(const QStringList &words) const
{
    const std::optional<int> posnum = parsePosnum(words[0]);
    if (!posnum)
        return notAPosition(words[0]);
    const TaraState state = cashRegister().taraState();
    const TaraUse *const tara = state.tara(*posnum);
    const QString what = "tara " + words[0];
    if (isNone(words.mid(1)))
        return tara ? differs(what, "none", "a record") : Outcome::done();
    if (!tara)
        return differs(what, words.mid(1).join(' '), "none");
    for (qsizetype i = 1; i < words.size(); i += 2) {
        if (words[i] != "capacity" && words[i] != "free")
            return notOneOf(words[i], {"capacity", "free", "none"});
        const Outcome checked = compareQuantity(what + ' ' + words[i], words.value(i + 1),
                                                words[i] == "free" ? tara->free : tara->capacity);
        if (!checked)
            return checked;
    }
    return Outcome::done();
}

Outcome Expectations::goods(const QStringList &words) const
{
    const std::optional<int> posnum = parsePosnum(words[0]);
    if (!posnum)
        return notAPosition(words[0]);
    const TaraState state = cashRegister().taraState();
    const GoodsUse *const goods = state.goodsOf(*posnum);
    const QString what = "goods " + words[0];
    if (isNone(words.mid(1)))
        return goods ? differs(what, "none", "a record") : Outcome::done();
    if (!goods)
        return differs(what, words.mid(1).join(' '), "none");
    for (qsizetype i = 1; i < words.size();) {
        Outcome checked;
        if (words[i] == "in") {
            if (!parsePosnum(words.value(i + 1)))
                return notAPosition(words.value(i + 1));
            checked = compareQuantity(what + " in " + words.value(i + 1), words.value(i + 2),
                                      amountIn(state, *goods, words.value(i + 1).toInt()));
            i += 3;
        } else if (words[i] == "unplaced") {
            checked =
                compareQuantity(what + " unplaced", words.value(i + 1),
                                unplaced(*goods, cashRegister().receipt()->line(*posnum).get()));
            i += 2;
        } else {
            return notOneOf(words[i], {"in", "unplaced", "none"});
        }
        if (!checked)
            return checked;
    }
    return Outcome::done();
}

Outcome Expectations::records(const QStringList &words) const
{
    const TaraState state = cashRegister().taraState();
    return compare("records", words.join(' '),
                   QString("%1 %2").arg(state.taras.size()).arg(state.goods.size()));
}

Outcome Expectations::total(const QStringList &words) const
{
    const auto receipt = cashRegister().receipt();
    return compareMoney("total", words[0], receipt ? receipt->total() : 0);
}

Outcome Expectations::message(const QStringList &words) const
{
    return checkSaid("message", words, m_heard.messages);
}

Outcome Expectations::question(const QStringList &words) const
{
    return checkSaid("question", words, m_heard.questions);
}

Outcome Expectations::log(const QStringList &words) const
{
    const QStringList &lines = m_heard.log;
    const QString found = lines.isEmpty() ? QStringLiteral("none") : lines.join(" | ");
    if (isNone(words))
        return lines.isEmpty() ? Outcome::done() : differs("log", "none", found);
    const QString expected = words.join(' ');
    return lines.contains(expected) ? Outcome::done()
                                    : differs("log", "\"" + brief(expected) + "\"", found);
}

Outcome Expectations::state(const QStringList &words) const
{
    return compare("state", words[0], stateName(cashRegister().receipt().get()));
}

Outcome Expectations::control(const QStringList &words) const
{
    static const QStringList names{"active", "suspended", "none"};
    return compare("control", words[0], names[static_cast<int>(cashRegister().taraControl())]);
}

} // namespace till
