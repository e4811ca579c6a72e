#include "till/course/RebuiltReceipt.h"

#include <QtCore/QJsonArray>

#include <algorithm>

namespace till {

namespace {

LineRecord lineOfNote(const QJsonObject &note)
{
    const ArticleData article{note["article"].toString(),      note["name"].toString(),
                              note["price"].toInteger(),       note["taraMode"].toInt(),
                              note["taraCapacity"].toDouble(), note["pack"].toDouble(),
                              note["unit"].toString()};
    return {note["position"].toInt(), article,
            note["count"].toDouble(), note["base"].toDouble(),
            note["group"].toString(), note["stornoed"].toBool()};
}

//! A trace may have been edited: places outside of the list are brought back to its ends.
QJsonValue withParts(QJsonArray list, const QJsonValue &parts)
{
    const QJsonArray all = parts.toArray();
    for (const QJsonValue part : all) {
        const qsizetype at = std::clamp<qsizetype>(part["at"].toInt(), 0, list.size());
        const qsizetype left = std::max<qsizetype>(list.size() - part["removed"].toInt(), at);
        while (list.size() > left)
            list.removeAt(at);
        const QJsonArray added = part["added"].toArray();
        for (qsizetype place = 0; place < added.size(); ++place)
            list.insert(at + place, added[place]);
    }
    return list;
}

} // namespace

void RebuiltReceipt::read(const QJsonObject &note)
{
    const QString kind = note["kind"].toString();
    if (kind == "takeup")
        *this = {};
    else if (kind == "position")
        readLine(note);
    else if (kind == "data")
        readData(note);
    else if (kind == "receipt")
        readHeader(note);
}

ReceiptRecord RebuiltReceipt::whole() const
{
    ReceiptRecord all = record;
    for (auto plugin = data.cbegin(); plugin != data.cend(); ++plugin)
        all.pluginData.insert(plugin.key(), plugin->toVariantMap());
    return all;
}

void RebuiltReceipt::readHeader(const QJsonObject &note)
{
    record.id = note["id"].toInteger();
    record.type = note["type"].toInt();
    record.state = static_cast<ReceiptState>(note["state"].toInt());
    record.order = note["order"].toString();
    record.softChecks = note["softChecks"].toVariant().toStringList();
}

//! Lines are in the order of their numbers.
void RebuiltReceipt::readLine(const QJsonObject &note)
{
    const LineRecord line = lineOfNote(note);
    const auto place =
        std::lower_bound(record.lines.begin(), record.lines.end(), line.posnum,
                         [](const auto &other, int posnum) { return other.posnum < posnum; });
    if (place != record.lines.end() && place->posnum == line.posnum)
        *place = line;
    else
        record.lines.insert(place, line);
    record.nextPosnum = record.lines.constLast().posnum + 1;
}

void RebuiltReceipt::readData(const QJsonObject &note)
{
    QJsonObject &saved = data[note["plugin"].toString()];
    const QString key = note["key"].toString();
    saved.insert(key, note.contains("parts") ? withParts(saved[key].toArray(), note["parts"])
                                             : note["value"]);
}

} // namespace till
