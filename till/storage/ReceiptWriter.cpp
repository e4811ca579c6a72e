#include "till/storage/ReceiptWriter.h"

#include "till/storage/Database.h"
#include "till/storage/VariantBytes.h"

#include <cmath>
#include <tuple>

namespace till {

namespace {

//! A text as the database takes it: a null one would become NULL.
QString stored(const QString &text)
{
    return text.isNull() ? QStringLiteral("") : text;
}

QByteArray stored(const QByteArray &bytes)
{
    return bytes.isNull() ? QByteArray("") : bytes;
}

auto headerOf(const ReceiptRecord &record)
{
    return std::tie(record.type, record.state, record.order, record.nextPosnum);
}

//! False for numbers that the database would turn into something else.
bool isStorable(const LineRecord &line)
{
    return !std::isnan(line.count) && !std::isnan(line.base)
           && !std::isnan(line.article.taraCapacity) && !std::isnan(line.article.pack);
}

QString nameOf(qint64 receiptId)
{
    return receiptId == 0 ? QStringLiteral("the new receipt")
                          : QStringLiteral("receipt %1").arg(receiptId);
}

bool writeHeader(Database &database, ReceiptRecord &next, const ReceiptRecord &last)
{
    const QVariantList fields{next.type, static_cast<int>(next.state), stored(next.order),
                              next.nextPosnum};
    if (next.id == 0) {
        const QSqlQuery *inserted = database.run(
            QStringLiteral(
                "INSERT INTO receipts (type, state, orderNumber, nextPosnum) VALUES (?, ?, ?, ?)"),
            fields);
        next.id = inserted ? inserted->lastInsertId().toLongLong() : 0;
        return inserted;
    }
    if (next.id == last.id && headerOf(next) == headerOf(last))
        return true;
    const QSqlQuery *updated = database.run(
        QStringLiteral("UPDATE receipts SET type = ?, state = ?, orderNumber = ?, nextPosnum = ? "
                       "WHERE id = ?"),
        fields + QVariantList{next.id});
    if (updated && updated->numRowsAffected() == 0)
        return database.fail(QStringLiteral("there is no %1").arg(nameOf(next.id)));
    if (!updated || next.id == last.id)
        return updated;
    // What the database holds of this receipt is not at hand: all of it is written anew.
    return database.run(QStringLiteral("DELETE FROM positions WHERE receipt = ?"), {next.id})
           && database.run(QStringLiteral("DELETE FROM softChecks WHERE receipt = ?"), {next.id})
           && database.run(QStringLiteral("DELETE FROM pluginData WHERE receipt = ?"), {next.id});
}

bool writeLines(Database &database, const ReceiptRecord &next, const ReceiptRecord &last)
{
    for (qsizetype place = 0; place < next.lines.size(); ++place) {
        const LineRecord &line = next.lines[place];
        if (place < last.lines.size() && line == last.lines[place])
            continue;
        if (!isStorable(line))
            return database.fail(
                QStringLiteral("position %1 has a quantity that is not a number").arg(line.posnum));
        const ArticleData &article = line.article;
        if (!database.run(
                QStringLiteral("INSERT OR REPLACE INTO positions (receipt, place, posnum, code, "
                               "name, price, taraMode, taraCapacity, pack, unit, count, base, "
                               "groupId, stornoed) "
                               "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                {next.id, place, line.posnum, stored(article.code), stored(article.name),
                 article.price, article.taraMode, article.taraCapacity, article.pack,
                 stored(article.unit), line.count, line.base, stored(line.groupId), line.stornoed}))
            return false;
    }
    return next.lines.size() >= last.lines.size()
           || database.run(QStringLiteral("DELETE FROM positions WHERE receipt = ? AND place >= ?"),
                           {next.id, next.lines.size()});
}

bool writeSoftChecks(Database &database, const ReceiptRecord &next, const ReceiptRecord &last)
{
    for (qsizetype place = 0; place < next.softChecks.size(); ++place) {
        if (place < last.softChecks.size() && next.softChecks[place] == last.softChecks[place])
            continue;
        if (!database.run(QStringLiteral("INSERT OR REPLACE INTO softChecks (receipt, place, "
                                         "number) VALUES (?, ?, ?)"),
                          {next.id, place, stored(next.softChecks[place])}))
            return false;
    }
    return next.softChecks.size() >= last.softChecks.size()
           || database.run(
               QStringLiteral("DELETE FROM softChecks WHERE receipt = ? AND place >= ?"),
               {next.id, next.softChecks.size()});
}

//! Writes \a value unless its bytes have the digest that was stored last; then sets \a digest.
bool writeValue(Database &database, const QVariantList &receiptPluginKey, const QVariant &value,
                QByteArray &digest)
{
    QString culprit;
    const auto bytes = VariantBytes::of(value, &culprit);
    if (!bytes)
        return database.fail(
            QStringLiteral("the data of plugin \"%1\" under \"%2\" hold a value "
                           "of type \"%3\", which cannot be stored")
                .arg(receiptPluginKey[1].toString(), receiptPluginKey[2].toString(), culprit));
    if (bytes->digest == digest)
        return true;
    digest = bytes->digest;
    return database.run(QStringLiteral("INSERT OR REPLACE INTO pluginData (receipt, plugin, key, "
                                       "value, types, digest) VALUES (?, ?, ?, ?, ?, ?)"),
                        receiptPluginKey
                            + QVariantList{bytes->bytes, stored(bytes->types), bytes->digest});
}

bool writePluginData(Database &database, StoredReceipt &next, const StoredReceipt &last)
{
    const auto &data = next.record.pluginData;
    for (auto plugin = data.cbegin(); plugin != data.cend(); ++plugin) {
        const QVariantMap lastData = last.record.pluginData.value(plugin.key());
        const auto lastDigests = last.digests.value(plugin.key());
        auto &digests = next.digests[plugin.key()];
        for (auto entry = plugin->cbegin(); entry != plugin->cend(); ++entry) {
            QByteArray &digest = digests[entry.key()];
            digest = lastDigests.value(entry.key());
            if (!VariantBytes::areSurelySame(entry.value(), lastData.value(entry.key()))
                && !writeValue(database,
                               {next.record.id, stored(plugin.key()), stored(entry.key())},
                               entry.value(), digest))
                return false;
        }
    }
    return true;
}

bool removePluginData(Database &database, const ReceiptRecord &next, const ReceiptRecord &last)
{
    for (auto plugin = last.pluginData.cbegin(); plugin != last.pluginData.cend(); ++plugin) {
        const QVariantMap kept = next.pluginData.value(plugin.key());
        for (auto entry = plugin->cbegin(); entry != plugin->cend(); ++entry) {
            if (!kept.contains(entry.key())
                && !database.run(QStringLiteral("DELETE FROM pluginData WHERE receipt = ? "
                                                "AND plugin = ? AND key = ?"),
                                 {next.id, stored(plugin.key()), stored(entry.key())}))
                return false;
        }
    }
    return true;
}

} // namespace

bool writeReceipt(Database &database, StoredReceipt &next, const StoredReceipt &last)
{
    return writeHeader(database, next.record, last.record)
           && writeLines(database, next.record, last.record)
           && writeSoftChecks(database, next.record, last.record)
           && writePluginData(database, next, last)
           && removePluginData(database, next.record, last.record);
}

bool writeJournal(Database &database, qint64 receiptId, const QList<JournalEntry> &journal)
{
    for (const JournalEntry &entry : journal) {
        if (!database.run(QStringLiteral("INSERT INTO journal (receipt, depth, kind, json) "
                                         "VALUES (?, ?, ?, ?)"),
                          {receiptId, entry.depth, stored(entry.kind), stored(entry.json)}))
            return false;
    }
    return true;
}

} // namespace till
