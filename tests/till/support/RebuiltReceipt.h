#ifndef TESTS_TILL_SUPPORT_REBUILTRECEIPT_H
#define TESTS_TILL_SUPPORT_REBUILTRECEIPT_H

#include "till/receipt/ReceiptRecord.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QMap>

#include <algorithm>

namespace till {

//! The current receipt, rebuilt from a trace alone by the rules of docs/trace.md.
struct RebuiltReceipt
{
    ReceiptRecord record;            //!< all but the plugin data
    QMap<QString, QJsonObject> data; //!< what plugins saved, by plugin, with the keys inside

    bool operator==(const RebuiltReceipt &other) const = default;

    //! Follows a note; what is no state says nothing of the receipt.
    void read(const QJsonObject &note)
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

    //! The receipt with its plugin data.
    ReceiptRecord whole() const
    {
        ReceiptRecord all = record;
        for (auto plugin = data.cbegin(); plugin != data.cend(); ++plugin)
            all.pluginData.insert(plugin.key(), plugin->toVariantMap());
        return all;
    }

private:
    void readHeader(const QJsonObject &note)
    {
        record.id = note["id"].toInteger();
        record.type = note["type"].toInt();
        record.state = static_cast<ReceiptState>(note["state"].toInt());
        record.order = note["order"].toString();
        record.softChecks = note["softChecks"].toVariant().toStringList();
    }

    //! Lines are in the order of their numbers.
    void readLine(const QJsonObject &note)
    {
        const LineRecord line = lineOf(note);
        const auto place =
            std::lower_bound(record.lines.begin(), record.lines.end(), line.posnum,
                             [](const auto &other, int posnum) { return other.posnum < posnum; });
        if (place != record.lines.end() && place->posnum == line.posnum)
            *place = line;
        else
            record.lines.insert(place, line);
        record.nextPosnum = record.lines.constLast().posnum + 1;
    }

    static LineRecord lineOf(const QJsonObject &note)
    {
        const ArticleData article{note["article"].toString(),      note["name"].toString(),
                                  note["price"].toInteger(),       note["taraMode"].toInt(),
                                  note["taraCapacity"].toDouble(), note["pack"].toDouble(),
                                  note["unit"].toString()};
        return {note["position"].toInt(), article,
                note["count"].toDouble(), note["base"].toDouble(),
                note["group"].toString(), note["stornoed"].toBool()};
    }

    void readData(const QJsonObject &note)
    {
        QJsonObject &saved = data[note["plugin"].toString()];
        const QString key = note["key"].toString();
        saved.insert(key, note.contains("parts") ? withParts(saved[key].toArray(), note["parts"])
                                                 : note["value"]);
    }

    static QJsonValue withParts(QJsonArray list, const QJsonValue &parts)
    {
        const QJsonArray all = parts.toArray();
        for (const QJsonValue &part : all) {
            const int at = part["at"].toInt();
            for (int removed = 0; removed < part["removed"].toInt(); ++removed)
                list.removeAt(at);
            const QJsonArray added = part["added"].toArray();
            for (int place = 0; place < added.size(); ++place)
                list.insert(at + place, added[place]);
        }
        return list;
    }
};

} // namespace till

#endif // TESTS_TILL_SUPPORT_REBUILTRECEIPT_H
