#include "till/goods/Money.h"

#include <QtCore/QRegularExpression>

#include <cmath>

namespace till {

namespace {

//! What quantities of three decimals may be off after some sums and packs, in thousandths.
constexpr double computed = 1e-5;
//! Sums below are exact in thousandths of a kopeck: as whole numbers, and nearly so as a double.
constexpr double greatestExact = 1e15;

//! \a thousandths of kopecks in whole kopecks.
Kopecks rounded(qint64 thousandths)
{
    return (thousandths + (thousandths < 0 ? -500 : 500)) / 1000;
}

} // namespace

Kopecks sumOf(Kopecks price, double quantity)
{
    const double sum = static_cast<double>(price) * quantity;
    const double thousandths = std::round(quantity * 1000.0);
    if (std::abs(sum) < greatestExact && std::abs(quantity * 1000.0 - thousandths) < computed)
        return rounded(price * static_cast<qint64>(thousandths));
    return std::llround(sum);
}

QString toText(Kopecks amount)
{
    const Kopecks magnitude = std::abs(amount);
    return QStringLiteral("%1%2.%3")
        .arg(amount < 0 ? QStringLiteral("-") : QString())
        .arg(magnitude / 100)
        .arg(magnitude % 100, 2, 10, QLatin1Char('0'));
}

std::optional<Kopecks> parseMoney(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]{1,12})(?:[.,]([0-9]{1,2}))?\\z"));
    const auto match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const QString fraction = match.captured(2).leftJustified(2, QLatin1Char('0'));
    return match.captured(1).toLongLong() * 100 + fraction.toLongLong();
}

QString toText(double quantity)
{
    QString text = QString::number(quantity, 'f', 3);
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

std::optional<double> parseQuantity(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^-?[0-9]{1,9}(?:[.,][0-9]{1,3})?\\z"));
    if (!form.match(text).hasMatch())
        return std::nullopt;
    return QString(text).replace(QLatin1Char(','), QLatin1Char('.')).toDouble();
}

} // namespace till
