#ifndef TESTS_TILL_SUPPORT_MANYRECEIPTS_H
#define TESTS_TILL_SUPPORT_MANYRECEIPTS_H

#include "till/result/Result.h"

#include <QtCore/QDate>
#include <QtCore/QString>

namespace till {

//! A thousand receipts are opened a day.
constexpr qint64 receiptsADay = 1000;

//! The day on which the receipt \a id was opened.
QDate dayOfReceipt(qint64 id);

/*!
 * Puts \a count receipts into the new database at \a path, with what the plugin would have noted
 * of their tara: sales that were closed, a return or a cancelled one here and there. They are the
 * same in every run for the same \a seed. \a progress is told how many there are, now and then.
 */
Result<> makeManyReceipts(const QString &path, qint64 count, quint32 seed = 1,
                          void (*progress)(qint64 done) = nullptr);

} // namespace till

#endif // TESTS_TILL_SUPPORT_MANYRECEIPTS_H
