#ifndef TESTS_TILL_STORAGE_STORAGEWRITERPLAN_H
#define TESTS_TILL_STORAGE_STORAGEWRITERPLAN_H

#include "till/storage/Storage.h"

namespace till {

//! What the writer stores: receipts of so many steps each, the last of which closes the receipt.
constexpr int StepsOfAReceipt = 20;

//! The receipt with number \a id as it is after \a step of its steps, 1 the first.
inline ReceiptRecord plannedReceipt(qint64 id, int step)
{
    ReceiptRecord record;
    record.id = id;
    record.state = step == StepsOfAReceipt ? ReceiptState::Closed : ReceiptState::Open;
    record.order = QStringLiteral("step %1").arg(step);
    record.nextPosnum = step + 1;
    // Every step changes several rows of every table, so that a part of it can be told.
    for (int posnum = 1; posnum <= step; ++posnum) {
        const ArticleData article{"100", "Beer", posnum, 2, 0.0, 0.5, "l"};
        record.lines.append(
            {posnum, article, posnum + step / 100.0, step / 2.0, "", step > posnum});
        record.softChecks.append(QStringLiteral("%1 of %2").arg(posnum).arg(step));
    }
    // A list that grows and loses its first elements, and one that changes as a whole.
    QVariantList numbers;
    for (int number = step * 3; number < step * 9; ++number)
        numbers.append(number);
    record.pluginData["plugin"]["numbers"] = numbers;
    record.pluginData["plugin"]["taraInfo"] = QVariantList(step * 5, QVariantMap{{"step", step}});
    record.pluginData["plugin"]["step"] = step;
    return record;
}

//! What a step adds to the journal.
inline QList<JournalEntry> plannedJournal(int step)
{
    return {{0, "step", QByteArray::number(step)}, {1, "echo", QByteArray::number(step)}};
}

} // namespace till

#endif // TESTS_TILL_STORAGE_STORAGEWRITERPLAN_H
