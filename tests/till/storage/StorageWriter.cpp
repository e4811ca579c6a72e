#include "tests/till/storage/StorageWriterPlan.h"
#include "tests/till/storage/UpdateBetween.h"
#include "tests/till/support/FailingDisk.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDataStream>
#include <QtCore/QFileInfo>
#include <QtCore/QStringList>

#include <cstdio>

// A till that does nothing but save, to be killed.
//   storage_writer open FILE     opens the database; says "opened" or why not
//   storage_writer foreign FILE  saves a value of a type that nobody else knows
//   storage_writer steps FILE N  takes step after step and prints the number of each saved receipt
//                                and step, until it is killed in front of its N-th call of the disk

struct KnownToTheWriter
{
    int number = 0;
};

inline QDataStream &operator<<(QDataStream &stream, const KnownToTheWriter &value)
{
    return stream << value.number;
}

inline QDataStream &operator>>(QDataStream &stream, KnownToTheWriter &value)
{
    return stream >> value.number;
}

Q_DECLARE_METATYPE(KnownToTheWriter)

namespace {

using namespace till;

void say(const QString &text)
{
    std::printf("%s\n", qUtf8Printable(text));
    std::fflush(stdout);
}

int fail(const QString &error)
{
    say(error);
    return 1;
}

int saveForeign(Storage &storage)
{
    ReceiptRecord record;
    record.pluginData["plugin"]["key"] = QVariant::fromValue(KnownToTheWriter{7});
    ReceiptUpdate update = wholeOf(record);
    const Result<> saved = storage.save(update, {});
    return saved ? (say("saved"), 0) : fail(saved.error().text());
}

//! Goes on where the last one was killed.
int takeSteps(Storage &storage)
{
    const auto read = storage.unfinishedReceipt();
    if (!read)
        return fail(read.error().text());
    qint64 id = *read ? (*read)->id : 0;
    int step = *read ? (*read)->nextPosnum - 1 : 0;
    bool isKnown = false; // to this storage, which then is told what changed alone
    for (;;) {
        if (step == StepsOfAReceipt) {
            id = step = 0;
            isKnown = false;
        }
        const ReceiptRecord record = plannedReceipt(id, ++step);
        ReceiptUpdate update =
            isKnown ? updateBetween(plannedReceipt(id, step - 1), record) : wholeOf(record);
        if (const Result<> saved = storage.save(update, plannedJournal(step)); !saved)
            return fail(saved.error().text());
        id = update.id;
        isKnown = true;
        say(QStringLiteral("%1 %2").arg(id).arg(step));
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int size = static_cast<int>(arguments.size());
    if (size != (size > 1 && arguments[1] == "steps" ? 4 : 3))
        return fail("usage: storage_writer open|foreign|steps FILE [N]");
    FailingDisk disk(QFileInfo(arguments[2]).absolutePath());
    if (arguments[1] == "steps")
        disk.killProcessAt(arguments[3].toInt());
    const auto storage = Storage::open(arguments[2]);
    if (!storage)
        return fail(storage.error().text());
    if (arguments[1] == "steps")
        return takeSteps(**storage);
    if (arguments[1] == "foreign")
        return saveForeign(**storage);
    say("opened");
    return 0;
}
