#ifndef HOST_EVENT_H
#define HOST_EVENT_H

#include "host/EActivityListener.h"
#include "host/HostGlobal.h"

#include <QtCore/QMap>
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QVariant>

/*!
 * An activity event: a code and named arguments. A value type, registered as the metatype "Event",
 * so that it can be delivered by name and through queued connections.
 */
class HOST_EXPORT Event
{
public:
    //! An event with code `eventNone`, as meta-type machinery needs it.
    Event() = default;
    //! A new event with \a code and no arguments.
    Event(EActivityListener::Event code);

    EActivityListener::Event getCode() const;

    //! The argument under \a key (exact, case-sensitive), or \a defaultValue when there is none.
    QVariant value(const QString &key, const QVariant &defaultValue) const;

    //! Every argument by its key.
    QVariantMap arguments() const;

    //! Stores \a value under \a key, replacing an earlier one. Returns this event, for chaining.
    Event &addArgument(const QString &key, const QVariant &value);

    //! Events are equal when their codes and all arguments are.
    bool operator==(const Event &other) const;
    bool operator!=(const Event &other) const { return !(*this == other); }

private:
    EActivityListener::Event m_code = EActivityListener::eventNone;
    QVariantMap m_arguments;
};

Q_DECLARE_METATYPE(Event)

#endif // HOST_EVENT_H
