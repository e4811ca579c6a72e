#include "plugin/PackagingControl.h"

#include "host/ActivityNotifier.h"
#include "host/Config.h"
#include "host/Quantity.h"

#include <log4qt/logger.h>
#include <log4qt/logmanager.h>

#include <QtCore/QSet>
#include <QtCore/QUuid>

PackagingControl::PackagingControl()
    : BaseActivityListener(nullptr)
    , logger(Log4Qt::LogManager::logger(QStringLiteral("packaging")))
{
    setObjectName(QStringLiteral("PackagingControl"));
    // Names under which events and actions carry the host's types.
    qRegisterNormalizedMetaType<Event>("Event");
    qRegisterNormalizedMetaType<GoodsItemPtr>("GoodsItemPtr");
    qRegisterNormalizedMetaType<GoodsItemPtrList>("GoodsItemPtrList");
    qRegisterNormalizedMetaType<Quantity>("Quantity");
}

template <PackagingControl::Callback callback>
void PackagingControl::attach(ActionTrigger::Order order, control::EActionType type,
                              ActionTrigger::Priority priority)
{
    addTrigger(ActionTrigger(
        EContext::Receipt, type, order,
        [this](const control::Action &action) { return (this->*callback)(action); },
        ActionTrigger::DefaultResult, priority));
}

bool PackagingControl::init()
{
    using This = PackagingControl;
    attach<&This::beforeApplyModifiers>(ActionTrigger::Before, control::ApplyModifiers,
                                        ActionTrigger::Normal);
    attach<&This::afterSplitPositions>(ActionTrigger::After, control::SplitPositions,
                                       ActionTrigger::Low);
    attach<&This::afterUnitePositions>(ActionTrigger::After, control::UnitePositions,
                                       ActionTrigger::Low);
    if (!Singleton<Config>::instance()->getBool(
            QStringLiteral("PackagingControl:allowSaleEmptyTara"), true)) {
        for (const auto type : {control::Subtotal, control::Payment})
            attach<&This::beforeSubtotal>(ActionTrigger::Before, type, ActionTrigger::High);
    }
    attach<&This::afterSoftcheck>(ActionTrigger::After, control::AddSoftCheck,
                                  ActionTrigger::Normal);

    Singleton<ActivityNotifier>::instance()->subscribe(
        this, {EActivityListener::eventPositionAdded, EActivityListener::eventPositionStorno,
               EActivityListener::eventModifierApplied, EActivityListener::eventModifierApplied2});
    return true;
}

void PackagingControl::setDocument(const QSharedPointer<AbstractDocument> &newDocument)
{
    constexpr int sale = 1;
    if (!newDocument || newDocument->getType() != sale) {
        disablePlugin();
        return;
    }
    if (newDocument->getOrder()) {
        logger->info(QStringLiteral(
            "Обрабатываемый документ содержит заказ, работа плагина приостановлена"));
        return;
    }
    Singleton<ActivityNotifier>::instance()->enableListener(this);
    DocumentWatcher::setDocument(newDocument);
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

EContext::Result PackagingControl::afterSoftcheck(const control::Action &)
{
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
    return document ? document->getPositionByPosnum(posnum) : nullptr;
}

#include "moc_PackagingControl.cpp"
