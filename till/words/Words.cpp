#include "till/words/Words.h"

#include "till/goods/Money.h"
#include "till/language/Nearest.h"
#include "till/register/Command.h"

#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>

namespace till {

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

QString joinWords(const QStringList &words)
{
    QStringList typed = words;
    for (QString &word : typed)
        word = asWord(word);
    return typed.join(QLatin1Char(' '));
}

std::optional<int> parsePosnum(const QString &word)
{
    bool isNumber = false;
    const int posnum = word.toInt(&isNumber);
    return isNumber && posnum > 0 ? std::optional(posnum) : std::nullopt;
}

Outcome notAPosition(const QString &word)
{
    return Outcome::mistake(word.isEmpty()
                                ? told("till", "a position number is missing")
                                : told("till", "\"%1\" is not a position number").with({word}));
}

Outcome notANumber(const QString &word)
{
    if (word.isEmpty())
        return Outcome::mistake(told("till", "a number is missing"));
    return Outcome::mistake(
        told("till", "\"%1\" is not a number with at most three decimals (1.5 or 1,5)")
            .with({word}));
}

Outcome notMoney(const QString &word)
{
    if (word.isEmpty())
        return Outcome::mistake(told("till", "an amount of money is missing"));
    static const QRegularExpression form(QStringLiteral("^0*[1-9][0-9]{12,}([.,][0-9]{1,2})?\\z"));
    if (form.match(word).hasMatch())
        return Outcome::mistake(told("till", "\"%1\" is more than %2, the greatest amount of money")
                                    .with({brief(word), toText(greatestAmount)}));
    return Outcome::mistake(
        told("till", "\"%1\" is not an amount of money (12.50 or 12,50)").with({word}));
}

Outcome notOneOf(const QString &word, const QStringList &allowed)
{
    return Outcome::mistake(
        told("till", "\"%1\" is none of: %2").with({word, allowed.join(QStringLiteral(", "))}));
}

Outcome unknownCommand(const QString &word, const QStringList &known)
{
    const QString meant = nearest(word, known);
    if (meant.isEmpty())
        return Outcome::mistake(told("till", "no command \"%1\"; try 'help'").with({word}));
    return Outcome::mistake(
        told("till", "no command \"%1\"; did you mean '%2'?").with({word, meant}));
}

Outcome wrongWords(const Usage &usage)
{
    if (usage.words.pattern.text().isEmpty())
        return Outcome::mistake(told("till", "usage: %1").with({usage.name}));
    return {Outcome::Mistake,
            told("till", "usage: %1 %L2").with({usage.name, usage.words.pattern.text()}),
            {}};
}

} // namespace till
