#include "till/reports/ReceiptJson.h"

#include "till/course/ReceiptNotes.h"
#include "till/receipt/TaraState.h"

#include <QtCore/QJsonArray>

namespace till {

namespace {

//! \a text, or null when there is none, which engines count for nothing.
QJsonValue orNull(const QString &text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

QJsonValue timeOf(const QDateTime &time)
{
    return orNull(time.isValid() ? time.toUTC().toString(Qt::ISODateWithMs) : QString());
}

QJsonArray positionsOf(const ReceiptRecord &record)
{
    QJsonArray positions;
    for (const LineRecord &line : record.lines)
        positions.append(describe(line, line.sum()));
    return positions;
}

//! The records of a receipt's tara, each with what is in it.
class TaraRecords
{
public:
    explicit TaraRecords(const ReceiptRecord &record)
        : m_state(TaraState::read(record.pluginData, taraPlugin()))
        , m_index(m_state)
    {
        for (const LineRecord &line : record.lines)
            m_articles.insert(line.posnum, line.article.code);
    }

    QJsonArray all() const
    {
        QJsonArray records;
        for (const TaraUse &tara : m_state.taras)
            records.append(QJsonObject{{"position", tara.posnum},
                                       {"article", articleOf(tara.posnum)},
                                       {"capacity", tara.capacity},
                                       {"free", tara.free},
                                       {"goods", goodsIn(tara)}});
        return records;
    }

private:
    QJsonArray goodsIn(const TaraUse &tara) const
    {
        QJsonArray contents;
        const auto all = m_index.goodsIn(tara);
        for (const GoodsUse *goods : all)
            contents.append(QJsonObject{{"position", goods->posnum},
                                        {"article", articleOf(goods->posnum)},
                                        {"amount", goods->used.value(tara.id)}});
        return contents;
    }

    QJsonValue articleOf(int posnum) const { return orNull(m_articles.value(posnum)); }

    TaraState m_state;
    TaraIndex m_index;
    QHash<int, QString> m_articles;
};

} // namespace

QString taraPlugin()
{
    return QStringLiteral("PackagingControl");
}

QString wordOfType(int type)
{
    switch (type) {
    case Document::Sale:
        return QStringLiteral("sale");
    case Document::Return:
        return QStringLiteral("return");
    default:
        return QStringLiteral("document");
    }
}

QJsonObject jsonOf(const KeptReceipt &receipt)
{
    const ReceiptRecord &record = receipt.record;
    const Result<> held = receipt.holds();
    QJsonObject object{{"id", record.id},
                       {"setApart", orNull(receipt.setApart)},
                       {"fault", held ? QJsonValue() : held.error().reason}};
    if (!receipt.recordHolds)
        return object;
    object.insert("type", wordOfType(record.type));
    object.insert("state", wordOf(record.state));
    object.insert("opened", timeOf(receipt.opened));
    object.insert("ended", timeOf(receipt.ended));
    object.insert("order", orNull(record.order));
    object.insert("softChecks", QJsonArray::fromStringList(record.softChecks));
    object.insert("total", receipt.total);
    object.insert("positions", positionsOf(record));
    if (receipt.dataHold)
        object.insert("tara", TaraRecords(record).all());
    return object;
}

} // namespace till
