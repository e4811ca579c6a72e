#ifndef TESTS_MEMORY_RECORDS_H
#define TESTS_MEMORY_RECORDS_H

#include "host/Document.h"
#include "tests/support/TestPlugin.h"

#include <QtCore/QList>

#include <ostream>

//! What is known of a whole receipt: both lists, by value.
struct Records
{
    QList<PackagingControl::TaraInfo> taras;
    QList<PackagingControl::PackagingInfo> goods;

    bool operator==(const Records &other) const = default;
};

void PrintTo(const Records &records, std::ostream *out);

//! What \a plugin has in its lists.
Records heldRecords(const TestPlugin &plugin);

//! What \a receipt keeps, read from its variants without the plugin.
Records storedRecords(const Document &receipt);

//! Whether what is taken of each tara is what the goods use of it, neither more nor less.
bool isBalanced(const Records &records);

#endif // TESTS_MEMORY_RECORDS_H
