#ifndef TILL_WORDS_WORDS_H
#define TILL_WORDS_WORDS_H

#include "till/receipt/ReceiptRecord.h"
#include "till/register/Outcome.h"
#include "till/words/Usage.h"

#include <QtCore/QStringList>

#include <optional>

namespace till {

/*!
 * Splits \a line at spaces; double quotes hold words with spaces together, three of them in a row
 * are a quote. Nothing for a line whose quotes do not match. A comment or an empty line has no
 * words.
 */
std::optional<QStringList> splitWords(const QString &line);

//! The line of which `splitWords` makes \a words, none of which may be empty.
QString joinWords(const QStringList &words);

//! The position number that \a word is, or nothing.
std::optional<int> parsePosnum(const QString &word);

//! The mistake of a word that is not a position number.
Outcome notAPosition(const QString &word);
//! The mistake of a word that is not a number.
Outcome notANumber(const QString &word);
//! The mistake of a word that is not an amount of money.
Outcome notMoney(const QString &word);
//! The mistake of a word that is none of \a allowed.
Outcome notOneOf(const QString &word, const QStringList &allowed);
//! The mistake of a word that is no command, with the one of \a known that may have been meant.
Outcome unknownCommand(const QString &word, const QStringList &known);
//! The mistake of too few or too many words.
Outcome wrongWords(const Usage &usage);

} // namespace till

#endif // TILL_WORDS_WORDS_H
