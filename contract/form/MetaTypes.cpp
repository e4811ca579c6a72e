#include "contract/Checks.h"

#include "host/BasicPlugin.h"
#include "host/Event.h"
#include "host/GoodsItem.h"
#include "host/Quantity.h"
#include "host/Tr.h"

#include <QtCore/QMetaType>
#include <QtCore/QSequentialIterable>

namespace contract {

namespace {

QString nameOf(QMetaType type)
{
    return type.isValid() ? QString::fromLatin1(type.name()) : QStringLiteral("nothing");
}

//! The name stands for the type once the plugin has registered it.
template <class T>
Row stands(const char *name)
{
    qRegisterMetaType<T>(name);
    const QMetaType found = QMetaType::fromName(name);
    return {found == QMetaType::fromType<T>(),
            QStringLiteral("\"%1\" stands for %2").arg(QString::fromLatin1(name), nameOf(found))};
}

Finding names()
{
    return judge({stands<Event>("Event"), stands<GoodsItemPtr>("GoodsItemPtr"),
                  stands<GoodsItemPtrList>("GoodsItemPtrList"), stands<Quantity>("Quantity")});
}

Finding eventType()
{
    const QMetaType type = QMetaType::fromType<Event>();
    return judge(
        {{type.isEqualityComparable(), QStringLiteral("events cannot be compared")},
         {std::is_default_constructible_v<Event>, QStringLiteral("no default constructor")},
         {std::is_copy_constructible_v<Event>, QStringLiteral("no copy constructor")}});
}

Finding positionType()
{
    const QMetaType type = QMetaType::fromType<GoodsItemPtr>();
    const bool converts = QMetaType::canConvert(type, QMetaType::fromType<QObject *>());
    return judge({{type.isEqualityComparable(), QStringLiteral("positions cannot be compared")},
                  {type.isOrdered(), QStringLiteral("positions have no order")},
                  {type.hasRegisteredDebugStreamOperator(), QStringLiteral("no debug output")},
                  {converts, QStringLiteral("a position is no QObject in a variant")},
                  {std::is_same_v<GoodsItemPtr, QSharedPointer<GoodsItem>>,
                   QStringLiteral("GoodsItemPtr is no QSharedPointer<GoodsItem>")}});
}

Finding listType()
{
    const QMetaType type = QMetaType::fromType<GoodsItemPtrList>();
    const bool isSequence = QMetaType::canConvert(type, QMetaType::fromType<QSequentialIterable>());
    return judge({{isSequence, QStringLiteral("a list of positions is no sequence in a variant")},
                  {std::is_same_v<GoodsItemPtrList, QList<QSharedPointer<GoodsItem>>>,
                   QStringLiteral("GoodsItemPtrList is no QList<QSharedPointer<GoodsItem>>")}});
}

template <class T, class = void>
constexpr bool isGadget = false;
template <class T>
constexpr bool isGadget<T, std::void_t<decltype(T::staticMetaObject)>> = true;

Finding quantityType()
{
    const QMetaType type = QMetaType::fromType<Quantity>();
    return judge({{isGadget<Quantity>, QStringLiteral("no Q_GADGET")},
                  {type.isEqualityComparable(), QStringLiteral("quantities cannot be compared")}});
}

Finding messageType()
{
    const QVariant carried = tr::Tr(QStringLiteral("key"), QStringLiteral("text"));
    const QString type = nameOf(carried.metaType());
    return judge({{carried.canConvert<tr::Tr>(),
                   QStringLiteral("a message becomes a %1 in a variant").arg(type)}});
}

Finding interfaceIdentifier()
{
    const char *const identifier = qobject_interface_iid<BasicPlugin *>();
    return judge({{identifier && *identifier, QStringLiteral("no interface identifier")}});
}

} // namespace

Checks metaTypeChecks()
{
    return {
        {"Types.Names", "Event, GoodsItemPtr, GoodsItemPtrList and Quantity name these types alone",
         "what travels under the name arrives empty", names},
        {"Types.Event", "an Event can be compared, copied and made empty",
         "events that are delivered by name or queued are lost", eventType},
        {"Types.Position", "a position handle compares, sorts, prints and converts to QObject *",
         "positions in events are not recognised", positionType},
        {"Types.PositionList", "a list of positions can be read as a sequence",
         "the pieces of a split position are not found", listType},
        {"Types.Quantity", "Quantity is a gadget that can be compared",
         "the quantity that the plugin sets cannot be read", quantityType},
        {"Types.Message", "a tr::Tr converts to a QVariant that holds a tr::Tr",
         "the cashier reads an empty text", messageType},
        {"Types.Interface", "Q_DECLARE_INTERFACE names BasicPlugin's identifier",
         "the host does not recognise the plugin's interface", interfaceIdentifier},
    };
}

} // namespace contract
