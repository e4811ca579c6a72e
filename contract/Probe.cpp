#include "contract/Probe.h"

#include "host/ActivityNotifier.h"

#include <QtCore/QStringList>

#include <utility>

namespace contract {

Probe::Probe()
    : BaseActivityListener(nullptr)
{
}

void Probe::watch(control::EActionType type, ActionTrigger::Order order, Callback callback,
                  ActionTrigger::Priority priority)
{
    addTrigger(ActionTrigger(EContext::Receipt, type, order, std::move(callback),
                             ActionTrigger::DefaultResult, priority));
}

bool Probe::init()
{
    ++inits;
    if (atInit)
        atInit();
    ActivityNotifier *const notifier = Singleton<ActivityNotifier>::instance();
    notifier->subscribe(
        this, {EActivityListener::eventPositionAdded, EActivityListener::eventPositionStorno,
               EActivityListener::eventModifierApplied, EActivityListener::eventModifierApplied2});
    return true;
}

void Probe::setDocument(const QSharedPointer<AbstractDocument> &newDocument)
{
    documents.append(newDocument);
    DocumentWatcher::setDocument(newDocument);
    Singleton<ActivityNotifier>::instance()->enableListener(this);
}

void Probe::handleEvent(const Event &event)
{
    events.append(event);
    // A copy: the reaction may put another in its place.
    if (const auto react = onEvent)
        react(event);
}

GoodsItemPtr Probe::onlyPosition(int code) const
{
    GoodsItemPtr found;
    for (const Event &event : events) {
        if (int(event.getCode()) != code)
            continue;
        if (found)
            return nullptr;
        found = positionOf(event);
    }
    return found;
}

QString Probe::codes() const
{
    QStringList texts;
    for (const Event &event : events)
        texts.append(QString::number(int(event.getCode())));
    return texts.isEmpty() ? QStringLiteral("none") : texts.join(QLatin1Char(' '));
}

GoodsItemPtr positionOf(const Event &event)
{
    return event.value(QStringLiteral("position"), QVariant()).value<GoodsItemPtr>();
}

} // namespace contract
