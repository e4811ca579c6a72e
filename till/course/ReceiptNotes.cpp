#include "till/course/ReceiptNotes.h"

#include <QtCore/QJsonArray>

namespace till {

namespace {

QJsonArray describe(const QList<ListChange> &parts)
{
    QJsonArray described;
    for (const ListChange &part : parts)
        described.append(QJsonObject{{"at", part.at},
                                     {"removed", part.removed},
                                     {"added", QJsonArray::fromVariantList(part.added)}});
    return described;
}

QJsonObject describe(const ValueChange &change)
{
    QJsonObject fields{{"plugin", change.plugin}, {"key", change.key}};
    if (change.parts.isEmpty())
        fields.insert("value", QJsonValue::fromVariant(change.value));
    else
        fields.insert("parts", describe(change.parts));
    return fields;
}

QJsonObject describe(const Receipt &receipt)
{
    const QSharedPointer<Order> order = receipt.getOrder();
    return {{"id", receipt.id()},
            {"type", receipt.getType()},
            {"state", static_cast<int>(receipt.state())},
            {"order", order ? order->number : QString()},
            {"softChecks", QJsonArray::fromStringList(receipt.softChecks())},
            {"positions", receipt.getPositionList().size()},
            {"total", receipt.total()},
            {"recomputations", receipt.recomputations()}};
}

} // namespace

QJsonObject describe(const LineRecord &line, Kopecks sum)
{
    const ArticleData &article = line.article;
    return {{"position", line.posnum},
            {"article", article.code},
            {"name", article.name},
            {"price", article.price},
            {"taraMode", article.taraMode},
            {"taraCapacity", article.taraCapacity},
            {"pack", article.pack},
            {"unit", article.unit},
            {"count", line.count},
            {"base", line.base},
            {"sum", sum},
            {"group", line.groupId},
            {"stornoed", line.stornoed}};
}

ReceiptNotes::ReceiptNotes(Notes &notes)
    : m_notes(notes)
{
}

void ReceiptNotes::tellTakenUp(const Receipt *receipt)
{
    m_notes.add("takeup", {{"id", receipt ? receipt->id() : 0}});
    if (!receipt || !m_notes.wantsStates())
        return;
    const ReceiptUpdate all = wholeOf(receipt->record());
    for (const ValueChange &value : all.values)
        tell(value);
    const auto lines = receipt->lines();
    for (const auto &position : lines)
        tell(*position);
    tellReceipt(*receipt);
}

void ReceiptNotes::tell(const Position &position)
{
    if (m_notes.wantsStates())
        m_notes.addState("position", describe(position.record(), position.sum()));
}

void ReceiptNotes::tell(const ValueChange &change)
{
    if (m_notes.wantsStates())
        m_notes.addState("data", describe(change));
}

void ReceiptNotes::tellReceipt(const Receipt &receipt)
{
    if (m_notes.wantsStates())
        m_notes.addState("receipt", describe(receipt));
}

} // namespace till
