#include "plugin/PackagingControl.h"

#include "host/ActivityNotifier.h"
#include "host/Config.h"
#include "host/Quantity.h"

#include <log4qt/logger.h>
#include <log4qt/logmanager.h>

#include <QtCore/QSet>
#include <QtCore/QUuid>

#include <functional>

PackagingControl::PackagingControl()
    : BaseActivityListener(nullptr)
    , logger(Log4Qt::LogManager::logger(QStringLiteral("packaging")))
{
    setObjectName(QStringLiteral("PackagingControl"));
    // Names under which events and actions carry the host's types.
    qRegisterMetaType<Event>("Event");
    qRegisterMetaType<GoodsItemPtr>("GoodsItemPtr");
    qRegisterMetaType<GoodsItemPtrList>("GoodsItemPtrList");
    qRegisterMetaType<Quantity>("Quantity");
}

bool PackagingControl::init()
{
    using This = PackagingControl;
    attach(ActionTrigger::Before, control::ApplyModifiers, &This::beforeApplyModifiers,
           ActionTrigger::Normal);
    attach(ActionTrigger::After, control::SplitPositions, &This::afterSplitPositions,
           ActionTrigger::Low);
    attach(ActionTrigger::After, control::UnitePositions, &This::afterUnitePositions,
           ActionTrigger::Low);
    if (!Singleton<Config>::instance()->getBool(
            QStringLiteral("PackagingControl:allowSaleEmptyTara"), true)) {
        for (const auto type : {control::Subtotal, control::Payment})
            attach(ActionTrigger::Before, type, &This::beforeSubtotal, ActionTrigger::High);
    }
    attach(ActionTrigger::After, control::AddSoftCheck, &This::afterSoftcheck,
           ActionTrigger::Normal);

    Singleton<ActivityNotifier>::instance()->subscribe(
        this, {EActivityListener::eventPositionAdded, EActivityListener::eventPositionStorno,
               EActivityListener::eventModifierApplied, EActivityListener::eventModifierApplied2});
    return true;
}

void PackagingControl::attach(ActionTrigger::Order order, control::EActionType type,
                              Callback callback, ActionTrigger::Priority priority)
{
    addTrigger(ActionTrigger(EContext::Receipt, type, order, std::bind_front(callback, this),
                             ActionTrigger::DefaultResult, priority));
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
