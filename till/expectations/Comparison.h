#ifndef TILL_EXPECTATIONS_COMPARISON_H
#define TILL_EXPECTATIONS_COMPARISON_H

#include "till/goods/Money.h"
#include "till/register/Outcome.h"

#include <QtCore/QStringList>

namespace till {

// Done when \a found is as expected; otherwise the mistake that says what is.

Outcome compare(const QString &what, const QString &expected, const QString &found);
//! Compares a number as the cashier sees it, to three decimals; \a expected is one.
Outcome compareQuantity(const QString &what, const QString &expected, double found);
//! The same with an amount of money.
Outcome compareMoney(const QString &what, const QString &expected, Kopecks found);

//! What is not as expected. Its values are these; \a words would hold in the place of those that
//! were \a expected, where they are others than \a found.
Outcome differs(const QString &what, const QString &expected, const QString &found,
                const QString &words = {});

//! Whether \a words are the one word "none".
bool isNone(const QStringList &words);

} // namespace till

#endif // TILL_EXPECTATIONS_COMPARISON_H
