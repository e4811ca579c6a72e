#ifndef HOST_BASEACTIVITYLISTENER_H
#define HOST_BASEACTIVITYLISTENER_H

#include "host/HostGlobal.h"

#include <QtCore/QObject>

class Event;

//! Receives activity events. Subscribed to codes through `ActivityNotifier`.
class HOST_EXPORT BaseActivityListener : public QObject
{
    Q_OBJECT

public:
    explicit BaseActivityListener(QObject *parent);
    ~BaseActivityListener() override;

    /*!
     * Called by the notifier on the host's thread. The listener may call back into the host, and
     * may be called again before it returns.
     */
    virtual void handleEvent(const Event &event) = 0;
};

#endif // HOST_BASEACTIVITYLISTENER_H
