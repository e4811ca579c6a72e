#ifndef CONTRACT_PROBE_H
#define CONTRACT_PROBE_H

#include "host/BaseActivityListener.h"
#include "host/BasicPlugin.h"
#include "host/DocumentWatcher.h"
#include "host/Event.h"
#include "host/GoodsItem.h"

#include <QtCore/QList>

#include <functional>

namespace contract {

/*!
 * A plugin's object that looks at the host from where the plugin stands: of the same three bases,
 * the last of which is reached by its name alone.
 */
class Probe : public BaseActivityListener, public BasicPlugin, protected DocumentWatcher
{
    Q_OBJECT
    Q_INTERFACES(BasicPlugin)

public:
    using Callback = std::function<EContext::Result(const control::Action &)>;

    Probe();

    //! Has \a callback called for the action, from `init` on.
    void watch(control::EActionType type, ActionTrigger::Order order, Callback callback,
               ActionTrigger::Priority priority = ActionTrigger::Normal);

    bool init() override;
    void setDocument(const QSharedPointer<AbstractDocument> &newDocument) override;
    void handleEvent(const Event &event) override;

    //! The position of the one event of \a code that came; null when none or several did.
    GoodsItemPtr onlyPosition(int code) const;
    //! The codes that came, in order.
    QString codes() const;

    std::function<void()> atInit;
    std::function<void(const Event &)> onEvent;
    QList<Event> events;
    QList<QSharedPointer<AbstractDocument>> documents; //!< handed over by the host
    int inits = 0;
};

//! The position of an event, read as the plugin reads it.
GoodsItemPtr positionOf(const Event &event);

} // namespace contract

#endif // CONTRACT_PROBE_H
