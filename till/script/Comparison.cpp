#include "till/script/Comparison.h"

#include "till/words/Words.h"

namespace till {

Outcome differs(const QString &what, const QString &expected, const QString &found,
                const QString &words)
{
    return {Outcome::Unexpected,
            told("till", "%1: expected %2, found %3").with({what, expected, found, words}),
            {}};
}

Outcome compare(const QString &what, const QString &expected, const QString &found)
{
    return expected == found ? Outcome::done() : differs(what, brief(expected), found);
}

Outcome compareQuantity(const QString &what, const QString &expected, double found)
{
    const std::optional<double> number = parseQuantity(expected);
    return number ? compare(what, toText(*number), toText(found)) : notANumber(expected);
}

Outcome compareMoney(const QString &what, const QString &expected, Kopecks found)
{
    const std::optional<Kopecks> money = parseMoney(expected);
    return money ? compare(what, toText(*money), toText(found)) : notMoney(expected);
}

bool isNone(const QStringList &words)
{
    return words.size() == 1 && words[0] == QLatin1String("none");
}

} // namespace till
