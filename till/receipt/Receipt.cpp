#include "till/receipt/Receipt.h"

#include "till/receipt/Limits.h"

#include <algorithm>
#include <utility>

namespace till {

Receipt::Receipt(int type)
    : Document(type)
{
}

Receipt::Receipt(const ReceiptRecord &record)
    : Document(record.type)
    , m_id(record.id)
    , m_state(record.state)
    , m_softChecks(record.softChecks)
    , m_nextPosnum(record.nextPosnum)
{
    if (!record.order.isEmpty())
        setOrder(QSharedPointer<Order>(new Order{record.order}));
    for (const LineRecord &stored : record.lines) {
        const auto position = QSharedPointer<Position>::create(
            stored.posnum, QSharedPointer<Article>::create(stored.article));
        position->setCquant(stored.count);
        position->setBquant(stored.base);
        position->setGroupId(stored.groupId);
        m_lines.append(position);
        if (stored.stornoed)
            position->setStornoed();
        else
            addPosition(position);
    }
    for (auto plugin = record.pluginData.cbegin(); plugin != record.pluginData.cend(); ++plugin) {
        for (auto entry = plugin->cbegin(); entry != plugin->cend(); ++entry)
            Document::setPluginData(plugin.key(), entry.key(), entry.value());
    }
    touch();
}

ReceiptRecord Receipt::record() const
{
    ReceiptRecord record{m_id,         getType(),    m_state, getOrder() ? getOrder()->number : "",
                         m_softChecks, m_nextPosnum, {},      pluginData()};
    record.lines.reserve(m_lines.size());
    for (const auto &position : m_lines)
        record.lines.append(position->record());
    return record;
}

QSharedPointer<Position> Receipt::line(int posnum) const
{
    const auto found = std::find_if(m_lines.cbegin(), m_lines.cend(),
                                    [posnum](const auto &p) { return p->getPosnum() == posnum; });
    return found == m_lines.cend() ? nullptr : *found;
}

QSharedPointer<Position> Receipt::add(const QSharedPointer<Article> &article, double count)
{
    const auto position = QSharedPointer<Position>::create(m_nextPosnum++, article);
    position->setCount(count);
    m_lines.append(position);
    addPosition(position);
    touch();
    return position;
}

bool Receipt::storno(int posnum)
{
    if (!removePosition(posnum))
        return false;
    line(posnum)->setStornoed();
    touch();
    return true;
}

void Receipt::touch()
{
    m_stale = true;
    if (!isSwitchedOn())
        return;
    m_stale = false;
    ++m_recomputations;
    m_total = sumWithout(nullptr);
}

Kopecks Receipt::sumWithout(const Position *omitted) const
{
    Kopecks sum = 0;
    for (const auto &position : m_lines) {
        if (!position->isStornoed() && position.get() != omitted)
            sum += position->sum();
    }
    return sum;
}

bool Receipt::hasPlaceFor(const ArticleData &article, double count, const Position *replaced) const
{
    const double sum =
        static_cast<double>(article.price) * count + static_cast<double>(sumWithout(replaced));
    return isCount(count) && sum <= static_cast<double>(greatestSum);
}

void Receipt::setDocumentSwitch(bool on)
{
    Document::setDocumentSwitch(on);
    if (on && m_stale)
        touch();
    if (m_watcher.switched)
        m_watcher.switched(on);
}

void Receipt::setPluginData(const QString &pluginId, const QString &key, const QVariant &value)
{
    Document::setPluginData(pluginId, key, value);
    if (m_watcher.pluginDataSet)
        m_watcher.pluginDataSet(pluginId, key, value);
}

} // namespace till
