#include "host/ActionQueueController.h"

#include "host/EContext.h"

template <>
SingletonSlot<ActionQueueController> Singleton<ActionQueueController>::instance{};

ActionQueueController::ActionQueueController(QObject *parent)
    : QObject(parent)
{
}

ActionQueueController::~ActionQueueController() = default;

int ActionQueueController::runAction(const control::Action &action)
{
    Q_UNUSED(action)
    return EContext::Cancel;
}

#include "moc_ActionQueueController.cpp"
