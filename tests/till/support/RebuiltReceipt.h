#ifndef TESTS_TILL_SUPPORT_REBUILTRECEIPT_H
#define TESTS_TILL_SUPPORT_REBUILTRECEIPT_H

#include "till/receipt/Receipt.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

//! Rebuilds the receipt in hand from a trace alone, by the rules of docs/trace.md.
class RebuiltReceipt
{
public:
    void read(const QJsonObject &note)
    {
        const QString kind = note.value("kind").toString();
        if (kind == "takeup")
            *this = {};
        else if (kind == "position")
            m_positions.insert(note.value("position").toInt(), note);
        else if (kind == "data")
            m_data[note.value("plugin").toString()].insert(note.value("key").toString(),
                                                           note.value("value").toVariant());
        else if (kind == "receipt")
            m_receipt = note;
    }

    till::ReceiptRecord record() const
    {
        till::ReceiptRecord record;
        record.id = m_receipt.value("id").toInteger();
        record.type = m_receipt.value("type").toInt();
        record.state = static_cast<till::ReceiptState>(m_receipt.value("state").toInt());
        record.order = m_receipt.value("order").toString();
        record.softChecks = m_receipt.value("softChecks").toVariant().toStringList();
        record.nextPosnum = m_positions.isEmpty() ? 1 : m_positions.lastKey() + 1;
        for (const QJsonObject &position : m_positions)
            record.lines.append(lineOf(position));
        record.pluginData = m_data;
        return record;
    }

    qint64 total() const { return m_receipt.value("total").toInteger(); }

private:
    static till::LineRecord lineOf(const QJsonObject &position)
    {
        const auto number = [&](const char *field) { return position.value(QLatin1String(field)); };
        const till::ArticleData article{
            number("article").toString(),      number("name").toString(),
            number("price").toInteger(),       number("taraMode").toInt(),
            number("taraCapacity").toDouble(), number("pack").toDouble(),
            number("unit").toString()};
        return {number("position").toInt(), article,
                number("count").toDouble(), number("base").toDouble(),
                number("group").toString(), number("stornoed").toBool()};
    }

    QMap<int, QJsonObject> m_positions;
    Document::PluginData m_data;
    QJsonObject m_receipt;
};

#endif // TESTS_TILL_SUPPORT_REBUILTRECEIPT_H
