// What each command does, given the words behind its name.

#include "till/script/CommandLine.h"

#include "till/language/TillMessages.h"
#include "till/script/Expectations.h"
#include "till/script/Words.h"

#include <utility>

namespace till {

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
    return Expectations(m_desk, m_heard,
                        [this](const QStringList &expected) { return runWords(expected); })
        .check(words);
}

Outcome CommandLine::quit(const QStringList &words)
{
    Q_UNUSED(words)
    m_hasQuit = true;
    return Outcome::done();
}

} // namespace till
