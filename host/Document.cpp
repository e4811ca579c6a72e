#include "host/Document.h"

Document::Document(int type)
    : m_type(type)
{
}

Document::~Document() = default;

int Document::getType() const
{
    return m_type;
}

QSharedPointer<Order> Document::getOrder() const
{
    return m_order;
}

QSharedPointer<GoodsItem> Document::getPositionByPosnum(int posnum) const
{
    for (const auto &position : m_positions) {
        if (position->getPosnum() == posnum)
            return position;
    }
    return nullptr;
}

void Document::setDocumentSwitch(bool on)
{
    m_switchedOn = on;
}

QList<QSharedPointer<GoodsItem>> Document::getPositionList() const
{
    return m_positions;
}

QVariant Document::getPluginData(const QString &pluginId, const QString &key,
                                 const QVariant &defaultValue) const
{
    const auto plugin = m_pluginData.constFind(pluginId);
    return plugin == m_pluginData.cend() ? defaultValue : plugin->value(key, defaultValue);
}

void Document::setPluginData(const QString &pluginId, const QString &key, const QVariant &value)
{
    m_pluginData[pluginId].insert(key, value);
}

void Document::setOrder(const QSharedPointer<Order> &order)
{
    m_order = order;
}

void Document::addPosition(const QSharedPointer<GoodsItem> &position)
{
    Q_ASSERT(position);
    Q_ASSERT(!getPositionByPosnum(position->getPosnum()));
    m_positions.append(position);
}

bool Document::removePosition(int posnum)
{
    return m_positions.removeIf([posnum](const auto &p) { return p->getPosnum() == posnum; }) > 0;
}

bool Document::isSwitchedOn() const
{
    return m_switchedOn;
}

Document::PluginData Document::pluginData() const
{
    return m_pluginData;
}
