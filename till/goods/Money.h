#ifndef TILL_GOODS_MONEY_H
#define TILL_GOODS_MONEY_H

#include <QtCore/QString>

#include <optional>

namespace till {

//! An amount of money in whole kopecks.
using Kopecks = qint64;

//! The greatest amount that can be written.
constexpr Kopecks greatestAmount = 99'999'999'999'999;
//! The greatest quantity that can be written.
constexpr double greatestQuantity = 999'999'999.999;

//! Price of \a quantity pieces at \a price each, rounded once to the nearest kopeck, halves away
//! from 0. A quantity of three decimals is taken for exactly that, however it was computed. Totals
//! that are stored are checked against it: to round otherwise takes another format of the database.
//! Beyond ten times what can be written it is that; what is not a number comes to 0.
Kopecks sumOf(Kopecks price, double quantity);

//! \a amount in roubles with two decimals and a point: 123450 is "1234.50".
QString toText(Kopecks amount);

//! Reads roubles, "12", "12.5", "12,50"; nothing for other texts, more than two decimals, or
//! more than `greatestAmount`.
std::optional<Kopecks> parseMoney(const QString &text);

//! \a quantity with at most three decimals, a point and no trailing zeros: "1.5".
QString toText(double quantity);

/*!
 * Reads a number with at most three decimals, written with a point or a comma; nothing for other
 * texts, also not for "1e3", "inf" or " 1". The magnitude is at most `greatestQuantity`.
 */
std::optional<double> parseQuantity(const QString &text);

} // namespace till

#endif // TILL_GOODS_MONEY_H
