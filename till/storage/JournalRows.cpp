#include "till/storage/JournalRows.h"

#include "till/database/Database.h"
#include "till/database/Table.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QMap>

namespace till {

namespace {

using Fields = QMap<QString, QJsonValue::Type>;

//! What each kind of note has at least, for its course to be told.
const QMap<QString, Fields> &kinds()
{
    static const Fields said{{"key", QJsonValue::String}, {"text", QJsonValue::String}};
    static const QMap<QString, Fields> kinds{
        {"action", {{"type", QJsonValue::Double}, {"origin", QJsonValue::String}}},
        {"trigger", {{"type", QJsonValue::Double}, {"result", QJsonValue::Double}}},
        {"result", {{"type", QJsonValue::Double}, {"result", QJsonValue::Double}}},
        {"command", {{"text", QJsonValue::String}}},
        {"question", said},
        {"answer", {{"key", QJsonValue::String}, {"confirmed", QJsonValue::Bool}}},
        {"message", said},
    };
    return kinds;
}

bool isNumber(const QVariant &value)
{
    return value.typeId() == QMetaType::LongLong || value.typeId() == QMetaType::Int;
}

//! Whether \a json is the note of a row that says that it is of that \a depth and \a kind.
Result<> check(const QByteArray &json, const QVariant &depth, const QString &kind)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    const auto fields = kinds().constFind(kind);
    if (!document.isObject() || fields == kinds().cend() || !isNumber(depth))
        return Fault{{}, QStringLiteral("no note of a journal")};
    const QJsonObject note = document.object();
    if (note["kind"] != kind || note["depth"] != depth.toInt())
        return Fault{{}, QStringLiteral("not the note that was stored")};
    for (auto field = fields->cbegin(); field != fields->cend(); ++field) {
        if (note[field.key()].type() != *field)
            return Fault{{}, QString("a note without \"%1\"").arg(field.key())};
    }
    return {};
}

} // namespace

Result<> eachOfJournal(Database &database, std::optional<qint64> receiptId,
                       const std::function<void(const JournalRow &row)> &take)
{
    const QString all = QStringLiteral("SELECT depth, kind, json, id, receipt FROM journal");
    const auto takeRow = [&take](const QSqlQuery &found) {
        const JournalEntry entry{found.value(0).toInt(), found.value(1).toString(),
                                 found.value(2).toByteArray()};
        JournalRow row{found.value(4).toLongLong(), entry};
        if (const Result<> checked = check(entry.json, found.value(0), entry.kind); !checked)
            row.entry = Fault{{},
                              QString("row %1 of its journal: ").arg(found.value(3).toLongLong())
                                  + checked.error().reason};
        take(row);
    };
    return receiptId ? database.each(all + " WHERE receipt = ? ORDER BY id", {*receiptId}, takeRow)
                     : database.each(all + " ORDER BY id", {}, takeRow);
}

Result<> writeJournal(Database &database, qint64 receiptId, const QList<JournalEntry> &journal)
{
    for (const JournalEntry &entry : journal) {
        const Result<> written = database.run(
            QStringLiteral("INSERT INTO journal (receipt, depth, kind, json) VALUES (?, ?, ?, ?)"),
            {receiptId, entry.depth, storable(entry.kind), storable(entry.json)});
        if (!written)
            return written;
    }
    return {};
}

} // namespace till
