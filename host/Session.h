#ifndef HOST_SESSION_H
#define HOST_SESSION_H

#include "host/HostGlobal.h"
#include "host/ModifiersContainer.h"
#include "host/Singleton.h"

//! The cashier's session.
class HOST_EXPORT Session
{
public:
    Session();
    Q_DISABLE_COPY_MOVE(Session)

    //! The session's current modifiers. Never null; owned by the session.
    virtual ModifiersContainer *getModifiers();

    virtual ~Session();

private:
    ModifiersContainer m_modifiers;
};

template <>
HOST_EXPORT SingletonSlot<Session> Singleton<Session>::instance;

#endif // HOST_SESSION_H
