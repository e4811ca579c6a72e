#ifndef HOST_ACTION_H
#define HOST_ACTION_H

#include "host/EActionType.h"
#include "host/HostGlobal.h"

#include <QtCore/QMultiMap>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QVariant>

namespace control {

namespace args {
class Basic;
}

/*!
 * One action of the cashier: its type and named arguments.
 *
 * An action is a handle. Copies share one set of arguments, so that an accessor made over an action
 * (`control::args::Core` …) changes that action and every copy of it.
 */
class HOST_EXPORT Action
{
public:
    //! A new action that shares its arguments with no other.
    Action(EActionType type, const QMultiMap<QString, QVariant> &arguments);

    EActionType getType() const;

    //! The arguments as they stand now.
    QMultiMap<QString, QVariant> getArguments() const;

    //! Sets the one value under \a key for every handle of this action, replacing earlier values.
    void setArgument(const QString &key, const QVariant &value) const;

private:
    friend class args::Basic;

    //! The argument under \a key, the one added last when there are several; null when there is
    //! none. Valid until an argument is set.
    const QVariant *find(const QString &key) const;

    struct Data;
    QSharedPointer<Data> m_data;
};

} // namespace control

#endif // HOST_ACTION_H
