#include "contract/Checks.h"

#include "host/ActionQueueController.h"
#include "host/ActivityNotifier.h"
#include "host/Config.h"
#include "host/Dialog.h"
#include "host/DocumentLogic.h"
#include "host/LoyaltySystemLayer.h"
#include "host/Session.h"

#include <QtCore/QSharedPointer>

namespace contract {

namespace {

//! The service is there when it is asked for, and the same one the next time.
template <class Service>
Row isKept(const char *name)
{
    Service *const first = Singleton<Service>::instance();
    Service *const second = Singleton<Service>::instance();
    const QString told = !first ? QStringLiteral("no %1") : QStringLiteral("another %1 each time");
    return {first && first == second, told.arg(QString::fromLatin1(name))};
}

Finding madeAndKept()
{
    return judge({isKept<Config>("Config"), isKept<Session>("Session"),
                  isKept<ActivityNotifier>("ActivityNotifier"),
                  isKept<ActionQueueController>("ActionQueueController"),
                  isKept<LoyaltySystemLayer>("LoyaltySystemLayer")});
}

template <class Object>
Row isMade(const char *name)
{
    const QSharedPointer<Object> made = MockFactory<Object>::create();
    return {!made.isNull(), QStringLiteral("no %1").arg(QString::fromLatin1(name))};
}

Finding factoryMakes()
{
    return judge({isMade<Dialog>("Dialog"), isMade<DocumentLogic>("DocumentLogic")});
}

//! Answers whether a substitute is handed out; nothing where the factory knows none.
template <template <class> class Factory, class Object>
Finding handsOutSubstitute()
{
    if constexpr (requires { Factory<Object>::mocked = QSharedPointer<Object>(); }) {
        const QSharedPointer<Object> substitute(new Object);
        Factory<Object>::mocked = substitute;
        const QSharedPointer<Object> made = Factory<Object>::create();
        return judge({{made == substitute, QStringLiteral("another object")}});
    } else {
        return unchecked(QStringLiteral("the host's factory takes no substitute"));
    }
}

Finding modifiersStay()
{
    Session *const session = Singleton<Session>::instance();
    ModifiersContainer *const first = session->getModifiers();
    return judge({{first != nullptr, QStringLiteral("none")},
                  {first == session->getModifiers(), QStringLiteral("others each time")}});
}

Finding absentSetting()
{
    const Config &settings = *Singleton<Config>::instance();
    const QString key = QStringLiteral("PackagingControl:noSuchSetting");
    return judge(
        {{settings.getBool(key, true), QStringLiteral("false where true is the default")},
         {!settings.getBool(key, false), QStringLiteral("true where false is the default")}});
}

} // namespace

Checks serviceChecks()
{
    return {
        {"Services.Kept", "each service is made on first use and stays the same",
         "the plugin listens to a notifier to which nobody publishes", madeAndKept},
        {"Services.Modifiers", "the session has one container of modifiers",
         "the quantity that the plugin sets is lost", modifiersStay},
        {"Services.AbsentSetting", "getBool gives the default for a setting that is not there",
         "empty tara is asked about, or not, against the shop's wish", absentSetting},
        {"Services.Factory", "MockFactory makes a Dialog and a DocumentLogic",
         "the plugin crashes at subtotal", factoryMakes},
        {"Services.Substitute", "MockFactory hands out the substitute that was installed",
         "the host program's own dialog is not asked", handsOutSubstitute<MockFactory, Dialog>},
    };
}

} // namespace contract
