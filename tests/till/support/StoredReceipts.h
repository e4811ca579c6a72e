#ifndef TESTS_TILL_SUPPORT_STOREDRECEIPTS_H
#define TESTS_TILL_SUPPORT_STOREDRECEIPTS_H

#include "tests/till/support/Results.h"
#include "till/storage/Storage.h"

#include <optional>

//! The receipt \a id of the database at \a path; nothing when there is none.
inline std::optional<till::ReceiptRecord> storedReceipt(const QString &path, qint64 id)
{
    const auto storage = till::must(till::Storage::open(path));
    return storage ? till::must(storage->receipt(id)) : std::nullopt;
}

#endif // TESTS_TILL_SUPPORT_STOREDRECEIPTS_H
