#include "till/expectations/Expectations.h"

#include "till/expectations/Comparison.h"

#include <algorithm>

namespace till {

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
        return said.isEmpty() ? Outcome::done()
                              : differs(what, "none", keysOf(said), said.constLast().key());
    const QString expected = words.join(' ');
    const bool found = std::any_of(said.cbegin(), said.cend(), [&](const tr::Tr &text) {
        return text.key() == expected
               || text.text().split('\n').join(' ') == expected.split('\n').join(' ');
    });
    return found ? Outcome::done()
                 : differs(what, "\"" + brief(expected) + "\"", keysOf(said),
                           said.isEmpty() ? QString() : said.constLast().key());
}

//! The number of the first position of the group that \a position belongs to, or "none".
QString groupOf(const Position &position, const Receipt &receipt)
{
    const QString group = position.getGroupId();
    const auto lines = receipt.lines();
    const auto first = std::find_if(lines.cbegin(), lines.cend(), [&group](const auto &line) {
        return line->getGroupId() == group;
    });
    return group.isEmpty() || first == lines.cend() ? QStringLiteral("none")
                                                    : QString::number((*first)->getPosnum());
}

Outcome checkPart(const Position &position, const Receipt &receipt, const QString &part,
                  const QString &value)
{
    const QString what = QString("position %1 %2").arg(position.getPosnum()).arg(part);
    if (part == "quantity")
        return compareQuantity(what, value, position.getCquant());
    if (part == "base")
        return compareQuantity(what, value, position.getBquant());
    if (part == "sum")
        return compareMoney(what, value, position.sum());
    if (part == "group")
        return compare(what, value, groupOf(position, receipt));
    return compare(what, value, position.article().code);
}

//! How a command ended, in the word by which "expect" is told so; a failure cannot be expected.
QString endOf(const Outcome &outcome)
{
    static const QStringList words{"accepted", "refused", "refused",   "refused",
                                   "mistake",  "failed",  "unexpected"};
    return words[outcome.kind];
}

//! What the goods hold in the tara at \a posnum.
double amountIn(const TaraIndex &index, const GoodsUse &goods, int posnum)
{
    const TaraUse *const tara = index.tara(posnum);
    return tara ? goods.used.value(tara->id, 0.0) : 0.0;
}

QString wordsOf(const TaraUse &tara)
{
    return "capacity " + toText(tara.capacity) + " free " + toText(tara.free);
}

//! Of goods of which the position has so much in \a base units.
QString wordsOf(const GoodsUse &goods, const TaraState &state, double base)
{
    QStringList words;
    for (const TaraUse &tara : state.taras) {
        if (goods.used.contains(tara.id))
            words.append(QString("in %1 %2").arg(tara.posnum).arg(toText(goods.used[tara.id])));
    }
    return words.isEmpty() ? "unplaced " + toText(goods.unplaced(base)) : words.join(' ');
}

} // namespace

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
        return outcome.isRefusal() ? Outcome::done() : Outcome::done(outcome.reason);
    }
    const QString why = m_textOf(outcome);
    if (outcome.isRefusal())
        return differs(brief(words.join(' ')), end, why, found); // which begins with what was found
    if (outcome.kind == Outcome::Failed)                         // which says so
        return differs(brief(words.join(' ')), end, why, found);
    return differs(brief(words.join(' ')), end, why.isEmpty() ? found : found + ": " + why, found);
}

Outcome Expectations::position(const QStringList &words) const
{
    const int posnum = words[0].toInt();
    const auto receipt = cashRegister().receipt();
    const auto line = receipt ? receipt->line(posnum) : nullptr;
    const QString what = "position " + words[0];
    if (isNone(words.mid(1)))
        return line ? differs(what, "none", line->article().code, "article " + line->article().code)
                    : Outcome::done();
    if (!line)
        return differs(what, words.mid(1).join(' '), "none");
    for (qsizetype i = 1; i < words.size(); ++i) {
        if (words[i] == "stornoed" || words[i] == "live") {
            const QString found = line->isStornoed() ? "stornoed" : "live";
            if (found != words[i])
                return differs(what, words[i], found);
            continue;
        }
        const Outcome checked = checkPart(*line, *receipt, words[i], words[i + 1]);
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
    const int posnum = words[0].toInt();
    const TaraState state = cashRegister().taraState();
    const TaraUse *const tara = TaraIndex(state).tara(posnum);
    const QString what = "tara " + words[0];
    if (isNone(words.mid(1)))
        return tara ? differs(what, "none", wordsOf(*tara)) : Outcome::done();
    if (!tara)
        return differs(what, words.mid(1).join(' '), "none");
    for (qsizetype i = 1; i < words.size(); i += 2) {
        const Outcome checked = compareQuantity(what + ' ' + words[i], words[i + 1],
                                                words[i] == "free" ? tara->free : tara->capacity);
        if (!checked)
            return checked;
    }
    return Outcome::done();
}

double Expectations::baseOf(int posnum) const
{
    const auto line = cashRegister().receipt()->line(posnum);
    return line ? line->getBquant() : 0.0;
}

Outcome Expectations::goods(const QStringList &words) const
{
    const int posnum = words[0].toInt();
    const TaraState state = cashRegister().taraState();
    const TaraIndex index(state);
    const GoodsUse *const goods = index.goodsOf(posnum);
    const QString what = "goods " + words[0];
    if (isNone(words.mid(1)))
        return goods ? differs(what, "none", wordsOf(*goods, state, baseOf(posnum)))
                     : Outcome::done();
    if (!goods)
        return differs(what, words.mid(1).join(' '), "none");
    for (qsizetype i = 1; i < words.size();) {
        const bool isIn = words[i] == "in";
        const Outcome checked = isIn
                                    ? compareQuantity(what + " in " + words[i + 1], words[i + 2],
                                                      amountIn(index, *goods, words[i + 1].toInt()))
                                    : compareQuantity(what + " unplaced", words[i + 1],
                                                      goods->unplaced(baseOf(posnum)));
        i += isIn ? 3 : 2;
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

Outcome Expectations::loyalty(const QStringList &words) const
{
    return compare("loyalty", QString::number(words[0].toInt()), QString::number(m_heard.loyalty));
}

Outcome Expectations::log(const QStringList &words) const
{
    const QStringList &lines = m_heard.log;
    const QString found = lines.isEmpty() ? QStringLiteral("none") : lines.join(" | ");
    if (isNone(words))
        return lines.isEmpty() ? Outcome::done() : differs("log", "none", found, lines.constLast());
    const QString expected = words.join(' ');
    return lines.contains(expected) ? Outcome::done()
                                    : differs("log", "\"" + brief(expected) + "\"", found,
                                              lines.isEmpty() ? QString() : lines.constLast());
}

Outcome Expectations::state(const QStringList &words) const
{
    const auto receipt = cashRegister().receipt();
    return compare("state", words[0], receipt ? wordOf(receipt->state()) : QStringLiteral("none"));
}

Outcome Expectations::control(const QStringList &words) const
{
    static const QStringList names{"active", "suspended", "none"};
    return compare("control", words[0], names[static_cast<int>(cashRegister().taraControl())]);
}

} // namespace till
