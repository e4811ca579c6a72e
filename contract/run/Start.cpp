#include "contract/Checks.h"
#include "contract/Stage.h"

#include "host/ActionQueueController.h"
#include "host/ActivityNotifier.h"
#include "host/Config.h"
#include "host/LoyaltySystemLayer.h"
#include "host/Session.h"

#include <QtCore/QStringList>

namespace contract {

namespace {

Finding takesTheInterface(Stage &stage)
{
    const bool taken = stage.driver->attach(&stage.probe);
    return judge({flag(taken, "the host did not take the plugin's object"),
                  {stage.probe.inits == 1,
                   QStringLiteral("init() was called %1 times").arg(stage.probe.inits)}});
}

Finding reachesTheWatcher(Stage &stage)
{
    stage.begin();
    return judge(
        {flag(!stage.probe.documents.isEmpty(), "setDocument was not called"),
         flag(stage.probe.documents.isEmpty() || stage.probe.documents.constLast() == stage.receipt,
              "setDocument was called with another document")});
}

//! The services as whoever asks now gets them.
QList<const void *> services()
{
    return {Singleton<Config>::instance(), Singleton<Session>::instance(),
            Singleton<ActivityNotifier>::instance(), Singleton<ActionQueueController>::instance(),
            Singleton<LoyaltySystemLayer>::instance()};
}

Finding servicesInTime(Stage &stage)
{
    QList<const void *> atInit;
    stage.probe.atInit = [&atInit] { atInit = services(); };
    stage.begin();
    const QStringList names{"Config", "Session", "ActivityNotifier", "ActionQueueController",
                            "LoyaltySystemLayer"};
    const QList<const void *> later = services();
    QStringList replaced;
    for (int i = 0; i < names.size(); ++i) {
        if (atInit.value(i) != later[i])
            replaced.append(names[i]);
    }
    return judge({{replaced.isEmpty(),
                   QStringLiteral("replaced after init(): %1").arg(replaced.join(", "))}});
}

} // namespace

Checks startChecks()
{
    return {
        {"Start.Interface",
         "the host reaches BasicPlugin by its identifier or name, and calls init() once",
         "the plugin does nothing", onStage<takesTheInterface>},
        {"Start.Watcher", "the host reaches the watcher by the text \"DocumentWatcher\"",
         "the plugin never sees a receipt", onStage<reachesTheWatcher>},
        {"Start.Services", "every service is in its place before init() and stays there",
         "the plugin subscribes to a notifier of its own, and reads no settings",
         onStage<servicesInTime>},
    };
}

} // namespace contract
