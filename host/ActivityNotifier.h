#ifndef HOST_ACTIVITYNOTIFIER_H
#define HOST_ACTIVITYNOTIFIER_H

#include "host/HostGlobal.h"
#include "host/Singleton.h"

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QSet>
#include <QtCore/QSharedPointer>

class BaseActivityListener;
class Event;

/*!
 * Publishes activity events to the listeners that subscribed to their codes.
 *
 * Listeners are not owned, and one that is destroyed is forgotten. Everything happens on the
 * caller's thread, before the call returns. A listener may subscribe, disable, enable or destroy
 * any listener, itself too, and may publish further events while it is being notified.
 */
class HOST_EXPORT ActivityNotifier
{
public:
    ActivityNotifier();
    Q_DISABLE_COPY_MOVE(ActivityNotifier)

    /*!
     * Registers \a listener for \a codes, enabled. Further calls for the same listener add codes
     * and keep its place in the order and whether it is enabled. A null listener is ignored.
     */
    virtual void subscribe(BaseActivityListener *listener, const QSet<int> &codes);

    // Two operations of the contract that no plugin calls. They keep the places of those behind
    // them.
    virtual void reservedOperation1();
    virtual void reservedOperation2();

    //! Stops delivery to \a listener, also of an event that is on its way. Unknown ones are
    //! ignored.
    virtual void disableListener(BaseActivityListener *listener);

    //! Resumes delivery to \a listener. Unknown ones are ignored.
    virtual void enableListener(BaseActivityListener *listener);

    /*!
     * Delivers \a event to every enabled listener of its code, in the order of subscription. A
     * listener that subscribes to the code meanwhile gets the next event first.
     */
    virtual void notify(const Event &event);

    virtual ~ActivityNotifier();

private:
    struct Subscription;
    Subscription *find(const BaseActivityListener *listener) const;

    QList<QSharedPointer<Subscription>> m_subscriptions;
};

template <>
HOST_EXPORT SingletonSlot<ActivityNotifier> Singleton<ActivityNotifier>::instance;

#endif // HOST_ACTIVITYNOTIFIER_H
