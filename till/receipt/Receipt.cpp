#include "till/receipt/Receipt.h"

#include "till/goods/Limits.h"

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
        if (stored.stornoed)
            position->setStornoed();
        append(position);
    }
    for (auto plugin = record.pluginData.cbegin(); plugin != record.pluginData.cend(); ++plugin) {
        for (auto entry = plugin->cbegin(); entry != plugin->cend(); ++entry)
            Document::setPluginData(plugin.key(), entry.key(), entry.value());
    }
    touch();
}

ReceiptRecord Receipt::record() const
{
    ReceiptRecord record{header(), {}, pluginData()};
    record.lines.reserve(m_lines.size());
    for (const Line &line : m_lines)
        record.lines.append(line.position->record());
    return record;
}

ReceiptHeader Receipt::header() const
{
    const QSharedPointer<Order> order = getOrder();
    return {m_id,         getType(),   m_state, order ? order->number : QString(),
            m_softChecks, m_nextPosnum};
}

ReceiptUpdate Receipt::update() const
{
    if (!m_wasStored)
        return wholeOf(record());
    ReceiptUpdate update{header(), false, {}, m_changedValues};
    for (const qsizetype place : m_changedPlaces)
        update.lines.insert(place, m_lines[place].position->record());
    return update;
}

void Receipt::setStored(qint64 id)
{
    m_id = id;
    m_wasStored = true;
    m_changedPlaces.clear();
    m_changedValues.clear();
}

QList<QSharedPointer<Position>> Receipt::lines() const
{
    QList<QSharedPointer<Position>> positions;
    positions.reserve(m_lines.size());
    for (const Line &line : m_lines)
        positions.append(line.position);
    return positions;
}

QSharedPointer<Position> Receipt::line(int posnum) const
{
    const qsizetype place = placeOf(posnum);
    return place < 0 ? nullptr : m_lines[place].position;
}

QSharedPointer<GoodsItem> Receipt::getPositionByPosnum(int posnum) const
{
    const auto position = line(posnum);
    return position && !position->isStornoed() ? position : nullptr;
}

QSharedPointer<Position> Receipt::add(const QSharedPointer<Article> &article, double count)
{
    const auto position = QSharedPointer<Position>::create(m_nextPosnum++, article);
    position->setCount(count);
    append(position);
    note(m_lines.size() - 1);
    return position;
}

void Receipt::append(const QSharedPointer<Position> &position)
{
    if (!position->isStornoed())
        addPosition(position);
    m_places.insert(position->getPosnum(), m_lines.size());
    m_lines.append(Line{position, 0.0, 0.0, {}, false, 0});
    count(m_lines.last());
}

bool Receipt::storno(int posnum)
{
    if (!removePosition(posnum))
        return false;
    const auto position = line(posnum);
    position->setStornoed();
    note(*position);
    return true;
}

bool Receipt::Line::isNoted() const
{
    return count == position->getCquant() && base == position->getBquant()
           && stornoed == position->isStornoed() && groupId == position->getGroupId();
}

void Receipt::count(Line &line)
{
    const Position &position = *line.position;
    const Kopecks before = line.counted;
    line.count = position.getCquant();
    line.base = position.getBquant();
    line.groupId = position.getGroupId();
    line.stornoed = position.isStornoed();
    line.counted = line.stornoed ? 0 : position.sum();
    m_sum += line.counted - before;
}

void Receipt::note(const Position &position)
{
    note(m_places.value(position.getPosnum()));
}

void Receipt::note(qsizetype place)
{
    count(m_lines[place]);
    m_changedPlaces.insert(place);
    if (m_watcher.lineNoted)
        m_watcher.lineNoted(*m_lines[place].position);
}

void Receipt::noteUnnoted()
{
    for (qsizetype place = 0; place < m_lines.size(); ++place) {
        if (!std::as_const(m_lines)[place].isNoted())
            note(place);
    }
}

void Receipt::touch()
{
    m_stale = true;
    if (!isSwitchedOn())
        return;
    m_stale = false;
    ++m_recomputations;
    m_total = m_sum;
}

bool Receipt::hasPlaceFor(const ArticleData &article, double count, const Position *replaced) const
{
    const Kopecks others =
        replaced ? m_sum - m_lines[m_places.value(replaced->getPosnum())].counted : m_sum;
    const double sum = static_cast<double>(article.price) * count;
    return isCount(count) && isSum(sum) && isSum(sum + static_cast<double>(others));
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
    std::optional<ValueChange> change = changeOf(getPluginData(pluginId, key, {}), value);
    if (!change)
        return;
    change->plugin = pluginId;
    change->key = key;
    Document::setPluginData(pluginId, key, value);
    m_changedValues.append(*change);
    if (m_watcher.valueChanged)
        m_watcher.valueChanged(*change);
}

} // namespace till
