#include "till/goods/Money.h"

#include <QtCore/QStringView>

#include <algorithm>
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

/*!
 * Reads 1 to \a digits digits and, behind a point or a comma, 1 to \a decimals more, as a whole
 * number of the last of these: "12,5" with two decimals is 1250. Nothing for other texts. Not by an
 * expression, which takes many times as long: catalogues are full of numbers.
 */
std::optional<qint64> parseDecimal(QStringView text, qsizetype digits, qsizetype decimals)
{
    const auto point = std::find_if(text.begin(), text.end(),
                                    [](QChar sign) { return sign == u'.' || sign == u','; });
    const bool hasPoint = point != text.end();
    const auto fraction = hasPoint ? point + 1 : point;
    const qsizetype given = text.end() - fraction;
    if (point == text.begin() || point - text.begin() > digits || given > decimals
        || (hasPoint && given == 0))
        return std::nullopt;

    qint64 number = 0;
    const auto takesDigit = [&number](QChar sign) {
        number = 10 * number + sign.unicode() - u'0';
        return sign >= u'0' && sign <= u'9';
    };
    if (!std::all_of(text.begin(), point, takesDigit)
        || !std::all_of(fraction, text.end(), takesDigit))
        return std::nullopt;
    for (qsizetype place = given; place < decimals; ++place)
        number *= 10;
    return number;
}

} // namespace

Kopecks sumOf(Kopecks price, double quantity)
{
    const double sum = static_cast<double>(price) * quantity;
    const double thousandths = std::round(quantity * 1000.0);
    if (std::abs(sum) < greatestExact && std::abs(thousandths) < greatestExact
        && std::abs(quantity * 1000.0 - thousandths) < computed)
        return rounded(price * static_cast<qint64>(thousandths));
    return std::isnan(sum) ? 0 : std::llround(std::clamp(sum, -greatestExact, greatestExact));
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
    return parseDecimal(text, 12, 2);
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
    const bool isNegative = text.startsWith(QLatin1Char('-'));
    const auto thousandths = parseDecimal(QStringView(text).sliced(isNegative ? 1 : 0), 9, 3);
    if (!thousandths)
        return std::nullopt;
    const double magnitude = static_cast<double>(*thousandths) / 1000.0;
    return isNegative ? -magnitude : magnitude;
}

} // namespace till
