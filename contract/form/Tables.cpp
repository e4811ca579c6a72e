#include "contract/Checks.h"
#include "contract/form/TableSlot.h"

#include "host/AbstractDocument.h"
#include "host/ActionQueueController.h"
#include "host/ActivityNotifier.h"
#include "host/BaseActivityListener.h"
#include "host/BasicPlugin.h"
#include "host/Config.h"
#include "host/Dialog.h"
#include "host/DocumentLogic.h"
#include "host/DocumentWatcher.h"
#include "host/LoyaltySystemLayer.h"
#include "host/Session.h"

namespace contract {

namespace {

constexpr int notThere = notVirtual - 1;

QString place(int slot)
{
    return slot == notThere     ? QStringLiteral("not there")
           : slot == notVirtual ? QStringLiteral("not virtual")
                                : QStringLiteral("slot %1").arg(slot);
}

Row inSlot(const char *operation, int seen, int needed)
{
    return {seen == needed, QStringLiteral("%1: %2 and not %3")
                                .arg(QString::fromLatin1(operation), place(seen), place(needed))};
}

Row isVirtual(const char *operation, int seen)
{
    return {seen >= 0, QStringLiteral("%1: %2").arg(QString::fromLatin1(operation), place(seen))};
}

// The slot of an operation, asked in a template, so that one that is missing is told.
#define TABLE_SLOT(Type, operation)                                                                \
    []<class T>(std::type_identity<T>) {                                                           \
        if constexpr (requires { &T::operation; })                                                 \
            return tableSlot(&T::operation);                                                       \
        else                                                                                       \
            return notThere;                                                                       \
    }(std::type_identity<Type>())
#define IN_SLOT(Type, operation, needed)                                                           \
    inSlot(#Type "::" #operation, TABLE_SLOT(Type, operation), needed)
#define VIRTUAL(Type, operation) isVirtual(#Type "::" #operation, TABLE_SLOT(Type, operation))

Finding pluginTable()
{
    return judge({IN_SLOT(BasicPlugin, init, 2), IN_SLOT(BasicPlugin, deinit, 3),
                  IN_SLOT(BasicPlugin, isFeatureMatched, 4), IN_SLOT(BasicPlugin, setFeature, 5),
                  IN_SLOT(BasicPlugin, addHandler, 6), IN_SLOT(BasicPlugin, addTrigger, 7),
                  IN_SLOT(BasicPlugin, disableTriggers, 8),
                  IN_SLOT(BasicPlugin, enableTriggers, 9)});
}

struct NextPlugin : BasicPlugin
{
    virtual void next() {}
};

Finding pluginTableEnd()
{
    return judge({IN_SLOT(NextPlugin, next, 10)});
}

Finding notifierTable()
{
    const int first = TABLE_SLOT(ActivityNotifier, subscribe);
    return judge({isVirtual("ActivityNotifier::subscribe", first),
                  IN_SLOT(ActivityNotifier, disableListener, first + 3),
                  IN_SLOT(ActivityNotifier, enableListener, first + 4),
                  IN_SLOT(ActivityNotifier, notify, first + 5)});
}

Finding documentTable()
{
    const int get = TABLE_SLOT(AbstractDocument, getPluginData);
    return judge({isVirtual("AbstractDocument::getPluginData", get),
                  IN_SLOT(AbstractDocument, setPluginData, get + 1)});
}

Finding documentOperations()
{
    return judge({VIRTUAL(AbstractDocument, getType), VIRTUAL(AbstractDocument, getOrder),
                  VIRTUAL(AbstractDocument, getPositionByPosnum),
                  VIRTUAL(AbstractDocument, setDocumentSwitch),
                  VIRTUAL(AbstractDocument, getPositionList)});
}

struct NextWatcher : DocumentWatcher
{
    virtual void next() {}
};

Finding watcherTable()
{
    return judge({IN_SLOT(DocumentWatcher, setDocument, 0), IN_SLOT(NextWatcher, next, 1)});
}

Finding listenerTable()
{
    return judge({VIRTUAL(BaseActivityListener, handleEvent)});
}

Finding serviceTables()
{
    return judge({VIRTUAL(ActionQueueController, runAction), VIRTUAL(Session, getModifiers),
                  VIRTUAL(Config, getBool), VIRTUAL(Dialog, showQuestion),
                  VIRTUAL(DocumentLogic, stornoPosition),
                  VIRTUAL(LoyaltySystemLayer, updateDocument)});
}

#undef VIRTUAL
#undef IN_SLOT
#undef TABLE_SLOT

} // namespace

Checks tableChecks()
{
    return {
        {"Table.Plugin",
         "after its two destructors BasicPlugin has init, deinit, isFeatureMatched, setFeature, "
         "addHandler, addTrigger, disableTriggers, enableTriggers, in this order",
         "the host starts the plugin, and another of its operations runs", pluginTable},
        {"Table.PluginEnd", "BasicPlugin has no virtual operation behind enableTriggers",
         "the host calls an operation that the plugin's table does not have", pluginTableEnd},
        {"Table.Notifier",
         "ActivityNotifier has subscribe, two operations, disableListener, enableListener, notify",
         "the plugin is silenced when it means to listen", notifierTable},
        {"Table.DocumentData", "setPluginData comes right after getPluginData",
         "records are read where they are to be written", documentTable},
        {"Table.Document", "the document's queries are virtual",
         "a document of a class of its own is not asked", documentOperations},
        {"Table.Watcher", "setDocument is the one virtual operation of DocumentWatcher",
         "the receipt never reaches the plugin", watcherTable},
        {"Table.Listener", "handleEvent is virtual", "no event reaches the plugin", listenerTable},
        {"Table.Services", "the operations of the services are virtual",
         "the host program's own service is not reached", serviceTables},
    };
}

} // namespace contract
