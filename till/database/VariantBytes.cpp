#include "till/database/VariantBytes.h"

#include <QtCore/QAssociativeIterable>
#include <QtCore/QDataStream>
#include <QtCore/QIODevice>
#include <QtCore/QMetaType>
#include <QtCore/QSequentialIterable>
#include <QtCore/QStringList>

#include <utility>

namespace till {

namespace {

constexpr auto StreamVersion = QDataStream::Qt_6_4;

//! What \a value holds, which must be of that type.
template <typename Type>
const Type &valueOf(const QVariant &value)
{
    return *static_cast<const Type *>(value.constData());
}

//! Looks at every value of a tree: which types it needs, and which one cannot be written.
class Survey
{
public:
    explicit Survey(const QVariant &root) { visit(root); }

    QStringList foreign; //!< types that Qt Core does not know by itself
    QString culprit;     //!< the first type without stream operators; empty when there is none

private:
    void visit(const QVariant &value)
    {
        const QMetaType type = value.metaType();
        if (!culprit.isEmpty() || !type.isValid())
            return;
        if (type.hasRegisteredDataStreamOperators())
            note(type);
        else
            culprit = QString::fromLatin1(type.name());
        visitElements(value, type.id());
    }

    void note(QMetaType type)
    {
        if (type.id() <= QMetaType::LastCoreType)
            return;
        const QString name = QString::fromLatin1(type.name());
        if (!foreign.contains(name))
            foreign.append(name);
    }

    void visitElements(const QVariant &value, int type)
    {
        switch (type) {
        case QMetaType::QVariant:
            return visit(valueOf<QVariant>(value));
        case QMetaType::QVariantPair:
            visit(static_cast<const std::pair<QVariant, QVariant> *>(value.constData())->first);
            return visit(
                static_cast<const std::pair<QVariant, QVariant> *>(value.constData())->second);
        case QMetaType::QVariantList:
            return visitAll(valueOf<QVariantList>(value));
        case QMetaType::QVariantMap:
            return visitAll(valueOf<QVariantMap>(value));
        case QMetaType::QVariantHash:
            return visitAll(valueOf<QVariantHash>(value));
        default:
            if (type > QMetaType::LastCoreType)
                visitContainer(value);
        }
    }

    void visitContainer(const QVariant &value)
    {
        if (value.canConvert<QAssociativeIterable>()) {
            const auto map = value.value<QAssociativeIterable>();
            for (auto entry = map.begin(); entry != map.end(); ++entry) {
                visit(entry.key());
                visit(entry.value());
            }
        } else if (value.canConvert<QSequentialIterable>()) {
            const auto list = value.value<QSequentialIterable>();
            for (const QVariant element : list)
                visit(element);
        }
    }

    template <typename Container>
    void visitAll(const Container &values)
    {
        for (const QVariant &value : values)
            visit(value);
    }
};

bool isKnown(const QString &typeName)
{
    const QMetaType type = QMetaType::fromName(typeName.toLatin1());
    return type.isValid() && type.hasRegisteredDataStreamOperators();
}

Fault notStorable(const QString &typeName)
{
    return {{},
            QStringLiteral("hold a value of type \"%1\", which cannot be stored").arg(typeName)};
}

} // namespace

Result<VariantBytes> VariantBytes::of(const QVariant &value)
{
    const Survey survey(value);
    if (!survey.culprit.isEmpty())
        return notStorable(survey.culprit);
    VariantBytes stored{{}, survey.foreign.join(QLatin1Char('\n'))};
    QDataStream stream(&stored.bytes, QIODevice::WriteOnly);
    stream.setVersion(StreamVersion);
    stream << value;
    // Operators of others may not fit together, or may write nothing of what they hold.
    if (stream.status() != QDataStream::Ok || (!stored.types.isEmpty() && !stored.decode()))
        return notStorable(QString::fromLatin1(value.metaType().name()));
    return stored;
}

Result<QVariant> VariantBytes::value() const
{
    const QStringList names = types.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &name : names) {
        if (!isKnown(name))
            return Fault{
                {}, QStringLiteral("hold a value of type \"%1\", which is not known").arg(name)};
    }
    const auto decoded = decode();
    if (!decoded)
        return Fault{{}, QStringLiteral("are damaged")};
    return Result<QVariant>(*decoded);
}

std::optional<QVariant> VariantBytes::decode() const
{
    QDataStream stream(bytes);
    stream.setVersion(StreamVersion);
    QVariant value;
    stream >> value;
    if (stream.status() != QDataStream::Ok || !stream.atEnd())
        return std::nullopt;
    return value;
}

} // namespace till
