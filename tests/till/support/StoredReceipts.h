#ifndef TESTS_TILL_SUPPORT_STOREDRECEIPTS_H
#define TESTS_TILL_SUPPORT_STOREDRECEIPTS_H

#include "till/storage/Storage.h"

#include <gtest/gtest.h>

#include <optional>

//! The receipt \a id of the database at \a path; nothing when there is none.
inline std::optional<till::ReceiptRecord> storedReceipt(const QString &path, qint64 id)
{
    QString error;
    const auto storage = till::Storage::open(path, &error);
    if (!storage) {
        ADD_FAILURE() << error.toStdString();
        return std::nullopt;
    }
    return storage->receipt(id, &error);
}

#endif // TESTS_TILL_SUPPORT_STOREDRECEIPTS_H
