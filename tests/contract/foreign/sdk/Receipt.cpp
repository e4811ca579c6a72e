#include "shopline/Receipt.h"

#include <QtCore/QDataStream>
#include <QtCore/QIODevice>
#include <QtCore/QJsonDocument>

#include <cstdlib>

namespace shopline {

namespace {

//! Everything once through text, as a shop may keep it that does not care for types.
QVariant throughText(const QVariant &value)
{
    const QByteArray text = QJsonDocument::fromVariant(QVariantList{value}).toJson();
    return QJsonDocument::fromJson(text).toVariant().toList().value(0);
}

} // namespace

Receipt::~Receipt() = default;

int Receipt::getType() const
{
    return 1;
}

QSharedPointer<Preorder> Receipt::getOrder() const
{
    if (breaks("Document.Sale"))
        return QSharedPointer<Preorder>(new Preorder{QStringLiteral("7")});
    return {};
}

LinePtr Receipt::find(int number) const
{
    for (const LinePtr &line : m_lines) {
        if (line->getPosnum() == number)
            return line;
    }
    return {};
}

LinePtr Receipt::getPositionByPosnum(int number) const
{
    if (breaks("Document.Lookup") && number > 1000)
        return m_lines.value(0);
    return find(number);
}

void Receipt::setDocumentSwitch(bool on)
{
    if (breaks("Document.Switch"))
        std::abort();
    m_isOn = on;
}

QList<LinePtr> Receipt::getPositionList() const
{
    if (breaks("Document.List") && m_made > 0)
        return {LinePtr()};
    return m_lines;
}

QVariant Receipt::getPluginData(const QString &plugin, const QString &key,
                                const QVariant &otherwise) const
{
    const QVariantMap data = m_data.value(breaks("Data.Apart") ? QString() : plugin);
    if (!data.contains(key))
        return breaks("Data.Default") ? QVariant() : otherwise;
    if (breaks("Data.ComesBack") && !m_isLoaded)
        return throughText(data.value(key));
    return data.value(key);
}

void Receipt::setPluginData(const QString &plugin, const QString &key, const QVariant &value)
{
    if (breaks("Receipt.Whole") && plugin == QLatin1String("PackagingControl"))
        return;
    if (breaks("Data.EmptyList") && value.typeId() == QMetaType::QVariantList
        && value.toList().isEmpty())
        return;
    m_data[breaks("Data.Apart") ? QString() : plugin].insert(key, value);
}

LinePtr Receipt::append(const Article &article, double quantity, const LinePtr &made)
{
    const LinePtr line = made ? made : LinePtr(new Line(nextNumber(), article));
    ++m_made;
    line->setQuantity(quantity);
    m_lines.append(line);
    return line;
}

void Receipt::drop(const LinePtr &line)
{
    m_lines.removeAll(line);
}

QByteArray Receipt::store() const
{
    QByteArray stored;
    QDataStream stream(&stored, QIODevice::WriteOnly);
    stream << m_data;
    return stored;
}

QSharedPointer<Receipt> Receipt::load(const QByteArray &stored)
{
    const QSharedPointer<Receipt> receipt(new Receipt);
    QDataStream stream(stored);
    stream >> receipt->m_data;
    receipt->m_isLoaded = true;
    if (breaks("Data.Stored")) {
        for (QVariantMap &data : receipt->m_data) {
            for (QVariant &value : data)
                value = throughText(value);
        }
    }
    return receipt;
}

void ReceiptHolder::setDocument(const QSharedPointer<Receipt> &receipt)
{
    receiptInHand = receipt;
}

} // namespace shopline
