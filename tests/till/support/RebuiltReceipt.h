#ifndef TESTS_TILL_SUPPORT_REBUILTRECEIPT_H
#define TESTS_TILL_SUPPORT_REBUILTRECEIPT_H

#include "tests/till/support/ToldValue.h"
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
            tell(m_data[note.value("plugin").toString()][note.value("key").toString()], note);
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
        for (auto plugin = m_data.cbegin(); plugin != m_data.cend(); ++plugin) {
            for (auto value = plugin->cbegin(); value != plugin->cend(); ++value)
                record.pluginData[plugin.key()].insert(value.key(), value->toVariant());
        }
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

    static void tell(QJsonValue &value, const QJsonObject &note) { value = toldValue(value, note); }

    QMap<int, QJsonObject> m_positions;
    QMap<QString, QMap<QString, QJsonValue>> m_data;
    QJsonObject m_receipt;
};

#endif // TESTS_TILL_SUPPORT_REBUILTRECEIPT_H
