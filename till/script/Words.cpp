#include "till/script/Words.h"

#include <QtCore/QProcess>

namespace till {

namespace {

//! The mistake of a \a word that is not \a what, or that is missing.
Outcome notA(const char *what, const QString &word)
{
    if (word.isEmpty())
        return Outcome::mistake(QString("%1 is missing").arg(what));
    return Outcome::mistake(QString("\"%1\" is not %2").arg(word, what));
}

} // namespace

std::optional<QStringList> splitWords(const QString &line)
{
    const QString trimmed = line.trimmed();
    if (trimmed.startsWith(QLatin1Char('#')))
        return QStringList();
    // Three quotes in a row are a quote itself.
    if (QString(trimmed).remove(QLatin1String("\"\"\"")).count(QLatin1Char('"')) % 2 != 0)
        return std::nullopt;
    return QProcess::splitCommand(trimmed);
}

std::optional<int> parsePosnum(const QString &word)
{
    bool isNumber = false;
    const int posnum = word.toInt(&isNumber);
    return isNumber && posnum > 0 ? std::optional(posnum) : std::nullopt;
}

Outcome notAPosition(const QString &word)
{
    return notA("a position number", word);
}

Outcome notANumber(const QString &word)
{
    return notA("a number with at most three decimals (1.5 or 1,5)", word);
}

Outcome notMoney(const QString &word)
{
    return notA("an amount of money (12.50 or 12,50)", word);
}

Outcome notOneOf(const QString &word, const QStringList &allowed)
{
    return Outcome::mistake("\"" + word + "\" is none of: " + allowed.join(", "));
}

} // namespace till
