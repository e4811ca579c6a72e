#ifndef HOST_ACTIONQUEUECONTROLLER_H
#define HOST_ACTIONQUEUECONTROLLER_H

#include "host/Action.h"
#include "host/HostGlobal.h"
#include "host/Singleton.h"

#include <QtCore/QObject>

//! Runs actions that the program asks for. A host program puts its own into the singleton.
class HOST_EXPORT ActionQueueController : public QObject
{
    Q_OBJECT

public:
    explicit ActionQueueController(QObject *parent = nullptr);
    ~ActionQueueController() override;

    /*!
     * Runs \a action now, nested in whatever runs already; its events arrive before the call
     * returns. The result is an `EContext::Result`, 2 meaning that the action was carried out.
     * Without a host program nothing can be carried out: this implementation answers 0.
     */
    virtual int runAction(const control::Action &action);
};

template <>
HOST_EXPORT SingletonSlot<ActionQueueController> Singleton<ActionQueueController>::instance;

#endif // HOST_ACTIONQUEUECONTROLLER_H
