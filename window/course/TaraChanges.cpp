#include "window/course/TaraChanges.h"

#include "till/goods/Money.h"
#include "till/reports/ReceiptJson.h"

#include <QtCore/QJsonArray>
#include <QtCore/QMap>
#include <QtCore/QStringList>

namespace till {

namespace {

using Records = QMap<int, QJsonObject>; //!< by the numbers of their positions

const QString taraKey = QStringLiteral("taraInfo");
const QString goodsKey = QStringLiteral("packagingInfo");

void collect(Records &records, const QJsonArray &list, qsizetype from, qsizetype count)
{
    const qsizetype end = std::min(from + count, list.size());
    for (qsizetype place = std::max<qsizetype>(from, 0); place < end; ++place) {
        const QJsonObject record = list[place].toObject();
        records.insert(record["posnum"].toInt(), record);
    }
}

QString amount(const QJsonObject &record, const char *key)
{
    return toText(record[QLatin1String(key)].toDouble());
}

Message taraChange(int posnum, const QJsonObject &was, const QJsonObject &is)
{
    const QString number = QString::number(posnum);
    if (is.isEmpty())
        return told("till", "tara %1: no longer noted").with({number});
    const QString free = amount(is, "freeCapacity");
    const QString capacity = amount(is, "capacity");
    if (was.isEmpty())
        return told("till", "tara %1: free %2 of %3").with({number, free, capacity});
    const QString capacityBefore = amount(was, "capacity");
    if (capacity != capacityBefore)
        return told("till", "tara %1: capacity %2 → %3, free %4")
            .with({number, capacityBefore, capacity, free});
    return told("till", "tara %1: free %2 → %3 of %4")
        .with({number, amount(was, "freeCapacity"), free, capacity});
}

//! The tara with that identifier, by its number; empty while it was not told of.
QString numberOf(const QString &id, const QJsonArray &taras)
{
    for (const QJsonValue tara : taras) {
        if (tara["id"].toString() == id)
            return QString::number(tara["posnum"].toInt());
    }
    return {};
}

Message goodsChange(int posnum, const QJsonObject &is, const QJsonArray &taras)
{
    const QString number = QString::number(posnum);
    if (is.isEmpty())
        return told("till", "goods %1: no longer noted").with({number});
    QStringList shares;
    const QJsonObject used = is["usedTara"].toObject();
    for (auto share = used.begin(); share != used.end(); ++share) {
        if (const QString text = toText(share.value().toDouble()); text != "0")
            shares.append(
                QStringLiteral("%1 (%2)").arg(numberOf(share.key(), taras), text).trimmed());
    }
    shares.sort();
    return shares.isEmpty()
               ? told("till", "goods %1: in no tara").with({number})
               : told("till", "goods %1: in tara %2").with({number, shares.join(", ")});
}

//! The records that \a note takes out of the list \a before, and those that it puts there.
void compare(const QJsonObject &note, const QJsonArray &before, Records &was, Records &is)
{
    if (!note.contains("parts")) {
        const QJsonArray after = note["value"].toArray();
        collect(was, before, 0, before.size());
        collect(is, after, 0, after.size());
        return;
    }
    qsizetype shift = 0; // places are those of the list as the parts before have left it
    const QJsonArray parts = note["parts"].toArray();
    for (const QJsonValue part : parts) {
        const QJsonArray added = part["added"].toArray();
        const qsizetype removed = part["removed"].toInt();
        collect(was, before, part["at"].toInt() - shift, removed);
        collect(is, added, 0, added.size());
        shift += added.size() - removed;
    }
}

} // namespace

bool isOfTara(const QJsonObject &note)
{
    return note["key"].toString() == taraKey && note["plugin"].toString() == taraPlugin();
}

QList<Message> changesIn(const QJsonObject &note, const RebuiltReceipt &before)
{
    const bool ofTara = isOfTara(note);
    if (!ofTara
        && (note["key"].toString() != goodsKey || note["plugin"].toString() != taraPlugin()))
        return {};
    const QJsonObject saved = before.data.value(taraPlugin());
    Records was;
    Records is;
    compare(note, saved[ofTara ? taraKey : goodsKey].toArray(), was, is);
    QList<Message> changes;
    const QJsonArray taras = saved[taraKey].toArray();
    Records all = was;
    all.insert(is);
    for (auto record = all.cbegin(); record != all.cend(); ++record) {
        const int posnum = record.key();
        if (was.value(posnum) != is.value(posnum))
            changes.append(ofTara ? taraChange(posnum, was.value(posnum), is.value(posnum))
                                  : goodsChange(posnum, is.value(posnum), taras));
    }
    return changes;
}

} // namespace till
