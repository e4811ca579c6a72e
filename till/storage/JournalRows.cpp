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

//! What is wrong with the note \a json of a row that says that it is of that \a depth and \a kind.
QString faultOf(const QByteArray &json, const QVariant &depth, const QString &kind)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    const auto fields = kinds().constFind(kind);
    if (!document.isObject() || fields == kinds().cend() || !isNumber(depth))
        return QStringLiteral("no note of a journal");
    const QJsonObject note = document.object();
    if (note["kind"] != kind || note["depth"] != depth.toInt())
        return QStringLiteral("not the note that was stored");
    for (auto field = fields->cbegin(); field != fields->cend(); ++field) {
        if (note[field.key()].type() != *field)
            return QString("a note without \"%1\"").arg(field.key());
    }
    return {};
}

} // namespace

void eachOfJournal(Database &database, std::optional<qint64> receiptId,
                   const std::function<void(const JournalRow &row)> &take)
{
    const QString all = QStringLiteral("SELECT depth, kind, json, id, receipt FROM journal");
    QSqlQuery *const rows = receiptId
                                ? database.run(all + " WHERE receipt = ? ORDER BY id", {*receiptId})
                                : database.run(all + " ORDER BY id");
    while (rows && database.next(*rows)) {
        const JournalEntry entry{rows->value(0).toInt(), rows->value(1).toString(),
                                 rows->value(2).toByteArray()};
        const QString fault = faultOf(entry.json, rows->value(0), entry.kind);
        const QString place = QString("row %1 of its journal: ").arg(rows->value(3).toLongLong());
        take({rows->value(4).toLongLong(), entry, fault.isEmpty() ? fault : place + fault});
    }
}

bool writeJournal(Database &database, qint64 receiptId, const QList<JournalEntry> &journal)
{
    for (const JournalEntry &entry : journal) {
        if (!database.run(QStringLiteral("INSERT INTO journal (receipt, depth, kind, json) "
                                         "VALUES (?, ?, ?, ?)"),
                          {receiptId, entry.depth, storable(entry.kind), storable(entry.json)}))
            return false;
    }
    return true;
}

} // namespace till
