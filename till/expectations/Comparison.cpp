#include "till/expectations/Comparison.h"

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
    return compare(what, toText(parseQuantity(expected).value_or(0.0)), toText(found));
}

Outcome compareMoney(const QString &what, const QString &expected, Kopecks found)
{
    return compare(what, toText(parseMoney(expected).value_or(0)), toText(found));
}

bool isNone(const QStringList &words)
{
    return words.size() == 1 && words[0] == QLatin1String("none");
}

} // namespace till
