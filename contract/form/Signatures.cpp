#include "contract/Checks.h"

#include "host/ActionArguments.h"
#include "host/ActionQueueController.h"
#include "host/ActivityNotifier.h"
#include "host/BaseActivityListener.h"
#include "host/BasicPlugin.h"
#include "host/Config.h"
#include "host/Dialog.h"
#include "host/DocumentLogic.h"
#include "host/DocumentWatcher.h"
#include "host/Event.h"
#include "host/Finally.h"
#include "host/GoodsItem.h"
#include "host/LoyaltySystemLayer.h"
#include "host/Quantity.h"
#include "host/Session.h"
#include "host/Tr.h"

#include <functional>
#include <type_traits>

// What each operation takes and gives, and on which objects it may be called. Asked in templates,
// so that a wrong one is told and does not end the build.

namespace contract {

namespace {

using Arguments = QMultiMap<QString, QVariant>;
using PositionPtr = QSharedPointer<GoodsItem>;
using DocumentPtr = QSharedPointer<AbstractDocument>;

Row form(const char *what, bool holds)
{
    return {holds, QStringLiteral("not %1").arg(QString::fromLatin1(what))};
}

template <class Type, class Base>
constexpr bool derives = std::is_convertible_v<Type *, Base *>;

// The call on an object of the type compiles and gives exactly the result.
#define GIVES(Type, call, Result)                                                                  \
    form(#Type "::" #call " giving " #Result, []<class T>(std::type_identity<T>) {                 \
        return requires(T & object)                                                                \
        {                                                                                          \
            {                                                                                      \
                object.call                                                                        \
                } -> std::same_as<Result>;                                                         \
        };                                                                                         \
    }(std::type_identity<Type>()))
// The call compiles; its result is not used.
#define TAKES(Type, call)                                                                          \
    form(#Type "::" #call, []<class T>(std::type_identity<T>) {                                    \
        return requires(T & object)                                                                \
        {                                                                                          \
            object.call;                                                                           \
        };                                                                                         \
    }(std::type_identity<Type>()))
#define MADE_FROM(Type, ...)                                                                       \
    form(#Type " made from (" #__VA_ARGS__ ")", std::is_constructible_v<Type, __VA_ARGS__>)
#define DERIVES(Type, Base) form(#Type " derived from " #Base, derives<Type, Base>)

Finding bases()
{
    return judge({DERIVES(BaseActivityListener, QObject), DERIVES(GoodsItem, QObject),
                  form("BasicPlugin with a virtual destructor",
                       std::has_virtual_destructor_v<BasicPlugin>)});
}

Finding listenerForm()
{
    return judge({TAKES(BaseActivityListener, handleEvent(std::declval<const Event &>()))});
}

Finding pluginForm()
{
    return judge({GIVES(BasicPlugin, init(), bool),
                  TAKES(BasicPlugin, addTrigger(std::declval<const ActionTrigger &>())),
                  GIVES(const BasicPlugin, isFeatureMatched(QString()), bool),
                  TAKES(BasicPlugin, disableTriggers(QSet<int>()))});
}

Finding positionForm()
{
    return judge({GIVES(const GoodsItem, getPosnum(), int),
                  GIVES(const GoodsItem, getTmcTaraCapacity(), QVariant),
                  GIVES(const GoodsItem, getBquant(), double),
                  GIVES(const GoodsItem, getCquant(), double),
                  GIVES(const GoodsItem, getGroupId(), QString),
                  TAKES(GoodsItem, setGroupId(std::declval<const QString &>()))});
}

Finding articleForm()
{
    return judge(
        {GIVES(const Tmc, getTaraMode(), int), GIVES(GoodsItem, getTmc()->getTaraMode(), int)});
}

Finding documentForm()
{
    return judge(
        {GIVES(AbstractDocument, getType(), int), TAKES(AbstractDocument, getOrder().isNull()),
         GIVES(AbstractDocument, getPositionByPosnum(1), PositionPtr),
         TAKES(AbstractDocument, setDocumentSwitch(true)),
         GIVES(AbstractDocument, getPositionList().isEmpty(), bool),
         GIVES(AbstractDocument, getPluginData(QString(), QString(), QVariant()), QVariant),
         TAKES(AbstractDocument, setPluginData(QString(), QString(), QVariant()))});
}

Finding watcherForm()
{
    return judge({TAKES(DocumentWatcher, setDocument(std::declval<const DocumentPtr &>()))});
}

Finding eventForm()
{
    return judge({MADE_FROM(Event, EActivityListener::Event),
                  GIVES(const Event, getCode(), EActivityListener::Event),
                  GIVES(const Event, value(QString(), QVariant()), QVariant),
                  GIVES(Event, addArgument(QString(), QVariant()), Event &),
                  GIVES(const Event, operator==(std::declval<const Event &>()), bool)});
}

Finding notifierForm()
{
    return judge({TAKES(ActivityNotifier, subscribe(std::declval<BaseActivityListener *>(),
                                                    std::declval<const QSet<int> &>())),
                  TAKES(ActivityNotifier, disableListener(std::declval<BaseActivityListener *>())),
                  TAKES(ActivityNotifier, enableListener(std::declval<BaseActivityListener *>())),
                  TAKES(ActivityNotifier, notify(std::declval<const Event &>()))});
}

Finding actionForm()
{
    return judge({MADE_FROM(control::Action, control::EActionType, const Arguments &),
                  GIVES(const control::Action, getArguments(), Arguments)});
}

Finding accessorForm()
{
    return judge({MADE_FROM(control::args::Core, const control::Action &),
                  MADE_FROM(control::args::Storno, const control::Action &),
                  GIVES(const control::args::Core, positionNumber(), int),
                  TAKES(const control::args::Core, setPositionNumber(1)),
                  TAKES(control::args::Storno, setWithoutDialog(true))});
}

Finding accessorBases()
{
    return judge({DERIVES(control::args::Storno, control::args::Pos),
                  DERIVES(control::args::Pos, control::args::Input),
                  DERIVES(control::args::Input, control::args::Core),
                  DERIVES(control::args::Core, control::args::Basic)});
}

Finding triggerForm()
{
    return judge(
        {MADE_FROM(ActionTrigger, EContext::Code, control::EActionType, ActionTrigger::Order,
                   std::function<EContext::Result(const control::Action &)>, ActionTrigger::Result,
                   ActionTrigger::Priority)});
}

Finding serviceForm()
{
    return judge(
        {GIVES(ActionQueueController, runAction(std::declval<const control::Action &>()), int),
         GIVES(Session, getModifiers(), ModifiersContainer *),
         GIVES(Config, getBool(QString(), true), bool),
         GIVES(Dialog,
               showQuestion(std::declval<const tr::Tr &>(), 1, std::declval<const tr::Tr &>(),
                            std::declval<const tr::Tr &>(), 0),
               bool),
         TAKES(DocumentLogic, stornoPosition(std::declval<const control::Action &>())),
         TAKES(LoyaltySystemLayer, updateDocument(std::declval<const DocumentPtr &>()))});
}

Finding modifiersForm()
{
    return judge(
        {GIVES(const ModifiersContainer, isSet(modifiers::Quantity), bool),
         TAKES(ModifiersContainer, set(modifiers::Quantity, std::declval<const QVariant &>())),
         TAKES(ModifiersContainer, clearAll())});
}

Finding valueForm()
{
    return judge({MADE_FROM(Quantity, double, EQuantMode),
                  GIVES(const Quantity, operator==(std::declval<const Quantity &>()), bool),
                  MADE_FROM(tr::Tr, const QString &, const QString &),
                  GIVES(const tr::Tr, operator QVariant(), QVariant),
                  MADE_FROM(Finally, std::function<void()>)});
}

#undef GIVES
#undef TAKES
#undef MADE_FROM
#undef DERIVES

} // namespace

Checks signatureChecks()
{
    return {
        {"Form.Bases", "listeners and positions are QObjects, plugins are deleted by their base",
         "the plugin's object is not found, or not taken down whole", bases},
        {"Form.Listener", "handleEvent takes a const Event &", "no event reaches the plugin",
         listenerForm},
        {"Form.Plugin", "BasicPlugin's operations as listed", "the plugin is not started",
         pluginForm},
        {"Form.Position", "GoodsItem's queries are const and give int, double, QString, QVariant",
         "amounts are cut short, and tara looks fuller or emptier than it is", positionForm},
        {"Form.Article", "the position's article tells its tara mode as an int",
         "bottles and what is poured are not told apart", articleForm},
        {"Form.Document", "the document's operations as listed",
         "positions are not found, and records are not kept", documentForm},
        {"Form.Watcher", "setDocument takes a const QSharedPointer<AbstractDocument> &",
         "the receipt never reaches the plugin", watcherForm},
        {"Form.Event", "Event's operations as listed; addArgument gives the event back",
         "a refusal reaches the cashier without its text", eventForm},
        {"Form.Notifier", "ActivityNotifier's operations as listed", "no event reaches the plugin",
         notifierForm},
        {"Form.Action", "an action is made of type and arguments, and gives the arguments back",
         "quantities in the receipt do not follow the tara", actionForm},
        {"Form.Accessors", "a position number is read and set through a const accessor",
         "the plugin asks for changes of position 0", accessorForm},
        {"Form.AccessorBases", "Storno is a Pos, an Input, a Core and a Basic",
         "a storno is asked for without its position", accessorBases},
        {"Form.Trigger", "a trigger is made of six values with a callback in fourth place",
         "the plugin is not asked before a quantity changes", triggerForm},
        {"Form.Services", "the services' operations as listed, with exactly these results",
         "success is taken for failure: what was changed is asked for again", serviceForm},
        {"Form.Modifiers", "isSet is const, set takes a QVariant, clearAll nothing",
         "the quantity that the plugin sets is not what the host applies", modifiersForm},
        {"Form.Values", "Quantity, tr::Tr and Finally are made and compared as listed",
         "messages and quantities do not travel", valueForm},
    };
}

} // namespace contract
