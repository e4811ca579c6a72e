#include "tests/model/RealReceipt.h"

#include "tests/model/Command.h"
#include "tests/model/RealHost.h"

#include <utility>

namespace model {

namespace {

//! \a value as the journal shows it; what has another type than it must have shows as such.
QString number(const QVariant &value)
{
    if (value.userType() == QMetaType::Int)
        return QString::number(value.toInt());
    if (value.userType() == QMetaType::Double)
        return QString::fromStdString(toText(value.toDouble()));
    return QStringLiteral("type %1").arg(QString::fromUtf8(value.typeName()));
}

QString text(const QVariant &value)
{
    return value.userType() == QMetaType::QString ? value.toString() : number(value);
}

QString taraText(const QVariantMap &map)
{
    QString line = " [" + number(map.value("posnum")) + ' ' + text(map.value("id")) + ' '
                   + number(map.value("capacity")) + " free " + number(map.value("freeCapacity"));
    return map.size() == 4 ? line + ']' : line + " and more]";
}

QString goodsText(const QVariantMap &map)
{
    QString line = " [" + number(map.value("posnum"));
    const QVariant usedTara = map.value("usedTara");
    if (usedTara.userType() != QMetaType::QVariantMap)
        line += number(usedTara);
    const QVariantMap used = usedTara.toMap();
    for (auto entry = used.cbegin(); entry != used.cend(); ++entry)
        line += ' ' + entry.key() + ": " + number(entry.value());
    return map.size() == 2 ? line + ']' : line + " and more]";
}

QSharedPointer<Tmc> tmcOf(const Article &article)
{
    static std::array<QSharedPointer<Tmc>, articles.size()> made;
    QSharedPointer<Tmc> &tmc = made.at(static_cast<std::size_t>(&article - articles.data()));
    if (!tmc) {
        const QVariant capacity = article.capacityText ? QVariant(QString(article.capacityText))
                                                       : QVariant(article.capacity);
        tmc = QSharedPointer<Tmc>::create(article.taraMode, capacity);
    }
    return tmc;
}

} // namespace

RealPosition::RealPosition(int posnum, const Article &article)
    : GoodsItem(posnum, tmcOf(article))
    , m_article(article)
{
}

void RealPosition::setCount(double count)
{
    setCquant(count);
    setBquant(count * m_article.pack);
}

void RealPosition::setBase(double base)
{
    setCquant(base / m_article.pack);
    setBquant(base);
}

RealReceipt::RealReceipt(RealHost &host, int receiptNumber, int type)
    : Document(type)
    , number(receiptNumber)
    , m_host(host)
{
}

void RealReceipt::setDocumentSwitch(bool on)
{
    m_host.say(QStringLiteral("switch %1 %2").arg(on ? "on" : "off").arg(number));
    Document::setDocumentSwitch(on);
}

QVariant RealReceipt::getPluginData(const QString &pluginId, const QString &key,
                                    const QVariant &defaultValue) const
{
    m_host.say("load " + key);
    return Document::getPluginData(pluginId, key, defaultValue);
}

void RealReceipt::setPluginData(const QString &pluginId, const QString &key, const QVariant &value)
{
    Document::setPluginData(pluginId, key, value);
    QString line = pluginId == "PackagingControl" ? "save " + key : "save for " + pluginId;
    const QVariantList records = value.toList();
    for (const QVariant &record : records)
        line += key == "taraInfo" ? taraText(record.toMap()) : goodsText(record.toMap());
    m_host.say(line);
}

QSharedPointer<RealPosition> RealReceipt::newPosition(const Article &article, double count)
{
    const auto position =
        QSharedPointer<RealPosition>::create(static_cast<int>(m_lines.size()) + 1, article);
    position->setCount(count);
    m_lines.append(position);
    addPosition(position);
    return position;
}

QSharedPointer<RealPosition> RealReceipt::line(int posnum) const
{
    return m_lines.value(posnum - 1);
}

QList<QSharedPointer<RealPosition>> RealReceipt::liveLines() const
{
    QList<QSharedPointer<RealPosition>> found;
    const auto positions = getPositionList();
    for (const auto &position : positions)
        found.append(line(position->getPosnum()));
    return found;
}

QSharedPointer<RealPosition> RealReceipt::live(int which) const
{
    const auto positions = getPositionList();
    return positions.isEmpty() ? nullptr
                               : line(positions.at(which % positions.size())->getPosnum());
}

} // namespace model
