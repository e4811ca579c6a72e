#include "tests/model/RealHost.h"

// A register that is brought back to where it was.

namespace model {

namespace {

template <typename Record>
QList<QSharedPointer<Record>> recordsOf(const QList<Record> &values)
{
    QList<QSharedPointer<Record>> records;
    for (const Record &value : values)
        records.append(QSharedPointer<Record>::create(value));
    return records;
}

} // namespace

QSharedPointer<RealPosition> RealPosition::clone() const
{
    const auto other = QSharedPointer<RealPosition>::create(getPosnum(), m_article);
    other->setCquant(getCquant());
    other->setBquant(getBquant());
    other->setGroupId(getGroupId());
    return other;
}

RealReceipt::Moment RealReceipt::moment() const
{
    Moment moment{{}, {}, pluginData()};
    for (const auto &line : m_lines) {
        moment.lines.append(line->clone());
        moment.areLive.append(!getPositionByPosnum(line->getPosnum()).isNull());
    }
    return moment;
}

void RealReceipt::returnTo(const Moment &moment)
{
    for (const auto &line : std::as_const(m_lines))
        removePosition(line->getPosnum());
    m_lines.clear();
    for (qsizetype i = 0; i < moment.lines.size(); ++i) {
        m_lines.append(moment.lines.at(i)->clone());
        if (moment.areLive.at(i))
            addPosition(m_lines.constLast());
    }
    // A key that was not there yet is read as one without records.
    for (const QString &key : {QStringLiteral("taraInfo"), QStringLiteral("packagingInfo")})
        Document::setPluginData("PackagingControl", key,
                                moment.data.value("PackagingControl").value(key));
}

RealHost::Moment RealHost::moment() const
{
    return {m_identifiers, inHand()->moment(), valuesOf(m_plugin->taraList),
            valuesOf(m_plugin->packagingList)};
}

void RealHost::returnTo(const Moment &moment)
{
    m_identifiers = moment.identifiers;
    inHand()->returnTo(moment.receipt);
    m_plugin->taraList = recordsOf(moment.taras);
    m_plugin->packagingList = recordsOf(moment.goods);
}

} // namespace model
