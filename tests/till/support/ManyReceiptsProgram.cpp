#include "tests/till/support/ManyReceipts.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>

#include <cstdio>

// Makes a database of many receipts, to try on it what a shop has after years:
// many_receipts FILE COUNT [SEED]

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    const qint64 count = words.value(2).toLongLong();
    if (words.size() < 3 || words.size() > 4 || count < 1) {
        std::fputs("usage: many_receipts FILE COUNT [SEED]\n", stderr);
        return 2;
    }
    const auto made =
        till::makeManyReceipts(words[1], count, words.value(3, "1").toUInt(), [](qint64 done) {
            std::fprintf(stderr, "\r%lld ", static_cast<long long>(done));
        });
    std::fputs(made ? "\n" : qPrintable(made.error().text() + '\n'), stderr);
    return made ? 0 : 1;
}
