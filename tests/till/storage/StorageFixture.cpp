#include "tests/till/storage/StorageFixture.h"

#include "tests/support/Printers.h"
#include "tests/till/support/Sql.h"
#include "till/goods/Limits.h"

#include <limits>

namespace till {

void PrintTo(const LineRecord &line, std::ostream *out)
{
    *out << line.posnum << ' ' << line.article.code.toStdString() << " \""
         << line.article.name.toStdString() << "\" " << line.article.price << " mode "
         << line.article.taraMode << " capacity " << line.article.taraCapacity << " pack "
         << line.article.pack << ' ' << line.article.unit.toStdString() << ": " << line.count
         << " pieces, " << line.base << " base, group \"" << line.groupId.toStdString() << '"'
         << (line.stornoed ? " stornoed" : "");
}

void PrintTo(const ReceiptRecord &record, std::ostream *out)
{
    *out << "receipt " << record.id << " type " << record.type << " state "
         << static_cast<int>(record.state) << " order \"" << record.order.toStdString()
         << "\" next " << record.nextPosnum << " soft-checks ";
    PrintTo(record.softChecks, out);
    for (const LineRecord &line : record.lines) {
        *out << "\n  ";
        PrintTo(line, out);
    }
    for (auto plugin = record.pluginData.cbegin(); plugin != record.pluginData.cend(); ++plugin) {
        *out << "\n  " << plugin.key().toStdString() << ": ";
        PrintTo(QVariant(plugin.value()), out);
    }
}

void PrintTo(const JournalEntry &entry, std::ostream *out)
{
    *out << entry.depth << ' ' << entry.kind.toStdString() << ' ' << entry.json.toStdString();
}

std::unique_ptr<Storage> StorageTest::opened(const QString &path)
{
    auto storage = must(Storage::open(path));
    if (!storage)
        throw std::runtime_error("the database did not open");
    return storage;
}

QString StorageTest::refusalOf(const QString &path)
{
    const auto opened = Storage::open(path);
    EXPECT_FALSE(opened);
    return faultText(opened);
}

void StorageTest::save(Storage &storage, ReceiptRecord &record, const QList<JournalEntry> &journal)
{
    ASSERT_EQ(trySave(storage, record, journal), QString());
}

QString StorageTest::trySave(Storage &storage, ReceiptRecord &record,
                             const QList<JournalEntry> &journal)
{
    ReceiptUpdate update = wholeOf(record);
    const QString error = faultText(storage.save(update, journal));
    record.id = update.id;
    return error;
}

std::optional<ReceiptRecord> StorageTest::unfinished(const Storage &storage)
{
    return must(storage.unfinishedReceipt());
}

QStringList StorageTest::query(const QString &path, const QString &sql)
{
    QStringList values;
    const QList<QVariantList> rows = rowsOf(path, sql);
    for (const QVariantList &row : rows)
        values.append(row.value(0).toString());
    return values;
}

QList<JournalEntry> journalOf(const QString &path, qint64 receipt)
{
    QList<JournalEntry> entries;
    const QList<QVariantList> rows = rowsOf(
        path, QStringLiteral("SELECT depth, kind, json FROM journal WHERE receipt = %1 ORDER BY id")
                  .arg(receipt));
    for (const QVariantList &row : rows)
        entries.append({row[0].toInt(), row[1].toString(), row[2].toByteArray()});
    return entries;
}

LineRecord lineOf(int posnum, double count)
{
    const ArticleData article{"100", "Beer", 12050, Tmc::PackagingGoods, 0.0, 0.5, "l"};
    return {posnum, article, count, count * article.pack, "", false};
}

ReceiptRecord StorageTest::receiptOf(int count)
{
    ReceiptRecord record;
    record.nextPosnum = count + 1;
    for (int posnum = 1; posnum <= count; ++posnum)
        record.lines.append(lineOf(posnum));
    return record;
}

ReceiptRecord StorageTest::leaveUnfinished(int count) const
{
    ReceiptRecord record = receiptOf(count);
    save(*opened(), record);
    return record;
}

QByteArray StorageTest::leaveDamaged() const
{
    constexpr qsizetype page = 4096;
    leaveUnfinished(200);
    QByteArray damaged = contents(path());
    damaged.replace(damaged.size() / page / 2 * page, page, QByteArray(page, '\x5a'));
    overwrite(path(), damaged);
    return damaged;
}

LineRecord oddLine()
{
    const ArticleData article{QString::fromUtf8("Ж-1'\"%1"),
                              QString::fromUtf8("Пиво «Тёмное» \U0001F37A\n; DROP TABLE x"),
                              greatestSum,
                              -7,
                              0.1 + 0.2,
                              0.001,
                              QString::fromUtf8("л")};
    return {std::numeric_limits<int>::max() - 1, article, 1.0 / 3.0, -1e9, "{group}", true};
}

ReceiptRecord withEverything()
{
    ReceiptRecord record{{0,
                          Document::Return,
                          ReceiptState::Subtotal,
                          "order 5",
                          {"10", "", "9", "9"},
                          std::numeric_limits<int>::max()},
                         {lineOf(3), oddLine(), lineOf(1, -2.5)},
                         {}};
    record.pluginData["PackagingControl"]["taraInfo"] = QVariantList{QVariantMap{{"posnum", 1}}};
    record.pluginData["PackagingControl"][""] = 5;
    record.pluginData["another"]["taraInfo"] = "text";
    return record;
}

} // namespace till
