#include "till/course/ReceiptNotes.h"

#include <QtCore/QJsonArray>

namespace till {

namespace {

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

ReceiptNotes::ReceiptNotes(Notes &notes)
    : m_notes(notes)
{
}

void ReceiptNotes::tellTakenUp(const Receipt *receipt)
{
    m_told.clear();
    m_notes.add("takeup", {{"id", receipt ? receipt->id() : 0}});
    if (!receipt)
        return;
    const auto data = receipt->pluginData();
    for (auto plugin = data.cbegin(); plugin != data.cend(); ++plugin) {
        for (auto entry = plugin->cbegin(); entry != plugin->cend(); ++entry)
            tellData(plugin.key(), entry.key(), entry.value());
    }
    tellReceipt(*receipt);
}

void ReceiptNotes::tell(const Position &position)
{
    if (!m_notes.wantsStates())
        return;
    const LineRecord line = position.record();
    m_told.insert(line.posnum, line);
    m_notes.addState("position", describe(line, position.sum()));
}

void ReceiptNotes::tellChanged(const Receipt &receipt)
{
    if (!m_notes.wantsStates())
        return;
    const auto lines = receipt.lines();
    for (const auto &position : lines) {
        const auto told = m_told.constFind(position->getPosnum());
        if (told == m_told.cend() || *told != position->record())
            tell(*position);
    }
}

void ReceiptNotes::tellData(const QString &plugin, const QString &key, const QVariant &value)
{
    if (m_notes.wantsStates())
        m_notes.addState(
            "data", {{"plugin", plugin}, {"key", key}, {"value", QJsonValue::fromVariant(value)}});
}

void ReceiptNotes::tellReceipt(const Receipt &receipt)
{
    if (!m_notes.wantsStates())
        return;
    tellChanged(receipt);
    m_notes.addState("receipt", describe(receipt));
}

} // namespace till
