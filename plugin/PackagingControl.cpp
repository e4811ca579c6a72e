#include "plugin/PackagingControl.h"

#include "host/ActivityNotifier.h"
#include "host/Config.h"
#include "host/Event.h"
#include "host/GoodsItem.h"
#include "host/Quantity.h"

#include <log4qt/logger.h>
#include <log4qt/logmanager.h>

#include <QtCore/QSet>
#include <QtCore/QUuid>

#include <functional>

namespace {

//! Names under which events and actions carry the host's types.
void registerMetaTypes()
{
    qRegisterMetaType<Event>("Event");
    qRegisterMetaType<GoodsItemPtr>("GoodsItemPtr");
    qRegisterMetaType<GoodsItemPtrList>("GoodsItemPtrList");
    qRegisterMetaType<Quantity>("Quantity");
}

QString allowSaleEmptyTaraKey()
{
    return QStringLiteral("PackagingControl:allowSaleEmptyTara");
}

} // namespace

PackagingControl::PackagingControl()
    : BaseActivityListener(nullptr)
    // On the heap, not in the plugin's image: the loggers keep it as a key.
    , logger(Log4Qt::LogManager::logger(QString::fromLatin1("packaging")))
{
    registerMetaTypes();
    // On the heap, not in the plugin's image: the document keeps it as a key.
    setObjectName(QString::fromLatin1("PackagingControl"));
}

PackagingControl::~PackagingControl() = default;

bool PackagingControl::init()
{
    using Callback = EContext::Result (PackagingControl::*)(const control::Action &);
    const auto attach = [this](control::EActionType type, ActionTrigger::Order order,
                               Callback callback, ActionTrigger::Priority priority) {
        addTrigger(ActionTrigger(EContext::Receipt, type, order, std::bind_front(callback, this),
                                 ActionTrigger::DefaultResult, priority));
    };

    attach(control::ApplyModifiers, ActionTrigger::Before, &PackagingControl::beforeApplyModifiers,
           ActionTrigger::Normal);
    attach(control::SplitPositions, ActionTrigger::After, &PackagingControl::afterSplitPositions,
           ActionTrigger::Low);
    attach(control::UnitePositions, ActionTrigger::After, &PackagingControl::afterUnitePositions,
           ActionTrigger::Low);
    if (!Singleton<Config>::instance()->getBool(allowSaleEmptyTaraKey(), true)) {
        attach(control::Subtotal, ActionTrigger::Before, &PackagingControl::beforeSubtotal,
               ActionTrigger::High);
        attach(control::Payment, ActionTrigger::Before, &PackagingControl::beforeSubtotal,
               ActionTrigger::High);
    }
    attach(control::AddSoftCheck, ActionTrigger::After, &PackagingControl::afterSoftcheck,
           ActionTrigger::Normal);

    Singleton<ActivityNotifier>::instance()->subscribe(
        this, {EActivityListener::eventPositionAdded, EActivityListener::eventPositionStorno,
               EActivityListener::eventModifierApplied, EActivityListener::eventModifierApplied2});
    return true;
}

void PackagingControl::setDocument(const QSharedPointer<AbstractDocument> &newDocument)
{
    constexpr int saleReceipt = 1;
    // Held: the host may change its own handle while it answers.
    const auto receipt = newDocument; // NOLINT(performance-unnecessary-copy-initialization)
    if (!receipt || receipt->getType() != saleReceipt) {
        disablePlugin();
        return;
    }
    if (receipt->getOrder()) {
        logger->info(QStringLiteral(
            "Обрабатываемый документ содержит заказ, работа плагина приостановлена"));
        return;
    }
    Singleton<ActivityNotifier>::instance()->enableListener(this);
    DocumentWatcher::setDocument(receipt);
    restorePluginData();
}

void PackagingControl::handleEvent(const Event &event)
{
    switch (event.getCode()) {
    case EActivityListener::eventPositionAdded:
        onPositionAddEvent(event);
        break;
    case EActivityListener::eventPositionStorno:
        onPositionStornoEvent(event);
        break;
    case EActivityListener::eventModifierApplied:
    case EActivityListener::eventModifierApplied2:
        onModifierApplyEvent(event);
        break;
    default:
        break;
    }
}

EContext::Result PackagingControl::afterSoftcheck(const control::Action &action)
{
    Q_UNUSED(action)
    logger->info(QStringLiteral("Добавлен софт-чек или заказ, работа плагина приостановлена"));
    disablePlugin();
    return EContext::Continue;
}

void PackagingControl::disablePlugin()
{
    document.reset();
    Singleton<ActivityNotifier>::instance()->disableListener(this);
}

QString PackagingControl::getId() const
{
    return QUuid::createUuid().toString(QUuid::WithBraces);
}

QSharedPointer<GoodsItem> PackagingControl::findPosition(int posnum) const
{
    const auto receipt = document; // held: the host may take it away while it answers
    return receipt ? receipt->getPositionByPosnum(posnum) : nullptr;
}
