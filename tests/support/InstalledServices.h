#ifndef TESTS_SUPPORT_INSTALLEDSERVICES_H
#define TESTS_SUPPORT_INSTALLEDSERVICES_H

#include "host/ActionQueueController.h"
#include "host/ActivityNotifier.h"
#include "host/Config.h"
#include "host/Dialog.h"
#include "host/DocumentLogic.h"
#include "host/LoyaltySystemLayer.h"
#include "host/Session.h"
#include "host/Singleton.h"

//! Puts a service in its singleton's place while it lives; then the one before is back.
template <class Service>
class Installed
{
public:
    explicit Installed(Service *service)
        : m_before(Singleton<Service>::instance)
    {
        Singleton<Service>::instance = service;
    }
    ~Installed() { Singleton<Service>::instance = m_before; }
    Q_DISABLE_COPY_MOVE(Installed)

    Service &before() const { return *m_before; }

private:
    Service *m_before;
};

//! No service in its singleton's place while it lives; what is made there meanwhile goes with it.
template <class Service>
class Missing
{
public:
    Missing() = default;
    ~Missing() { delete static_cast<Service *>(Singleton<Service>::instance); }
    Q_DISABLE_COPY_MOVE(Missing)

private:
    const Installed<Service> m_nothing{nullptr};
};

//! All services of a host in their places while it lives.
class InstalledServices
{
public:
    //! Takes \a dialog and \a logic over; the others must outlive this object.
    InstalledServices(ActivityNotifier *notifier, Config *config, Session *session,
                      ActionQueueController *queue, LoyaltySystemLayer *loyalty, Dialog *dialog,
                      DocumentLogic *logic)
        : m_notifier(notifier)
        , m_config(config)
        , m_session(session)
        , m_queue(queue)
        , m_loyalty(loyalty)
    {
        MockFactory<Dialog>::mocked.reset(dialog);
        MockFactory<DocumentLogic>::mocked.reset(logic);
    }
    ~InstalledServices()
    {
        MockFactory<Dialog>::mocked.reset();
        MockFactory<DocumentLogic>::mocked.reset();
    }
    Q_DISABLE_COPY_MOVE(InstalledServices)

private:
    const Installed<ActivityNotifier> m_notifier;
    const Installed<Config> m_config;
    const Installed<Session> m_session;
    const Installed<ActionQueueController> m_queue;
    const Installed<LoyaltySystemLayer> m_loyalty;
};

#endif // TESTS_SUPPORT_INSTALLEDSERVICES_H
