#include "host/ActivityNotifier.h"

#include "host/BaseActivityListener.h"
#include "host/Event.h"

#include <algorithm>
#include <iterator>
#include <utility>

template <>
SingletonSlot<ActivityNotifier> Singleton<ActivityNotifier>::instance{};

struct ActivityNotifier::Subscription
{
    QPointer<BaseActivityListener> listener;
    QSet<int> codes;
    bool enabled = true;
};

ActivityNotifier::ActivityNotifier() = default;
ActivityNotifier::~ActivityNotifier() = default;

ActivityNotifier::Subscription *ActivityNotifier::find(const BaseActivityListener *listener) const
{
    const auto found = std::find_if(m_subscriptions.cbegin(), m_subscriptions.cend(),
                                    [listener](const auto &s) { return s->listener == listener; });
    return found == m_subscriptions.cend() ? nullptr : found->get();
}

void ActivityNotifier::subscribe(BaseActivityListener *listener, const QSet<int> &codes)
{
    if (!listener)
        return;
    m_subscriptions.removeIf([](const auto &s) { return s->listener.isNull(); });
    Subscription *subscription = find(listener);
    if (!subscription) {
        m_subscriptions.append(QSharedPointer<Subscription>::create());
        subscription = m_subscriptions.constLast().get();
        subscription->listener = listener;
    }
    subscription->codes.unite(codes);
}

void ActivityNotifier::reservedOperation1() {}

void ActivityNotifier::reservedOperation2() {}

void ActivityNotifier::disableListener(BaseActivityListener *listener)
{
    if (Subscription *subscription = listener ? find(listener) : nullptr)
        subscription->enabled = false;
}

void ActivityNotifier::enableListener(BaseActivityListener *listener)
{
    if (Subscription *subscription = listener ? find(listener) : nullptr)
        subscription->enabled = true;
}

void ActivityNotifier::notify(const Event &event)
{
    // The list may change under the walk. Who is asked is settled by the subscriptions at its
    // start; whether a listener is still there and enabled, when its turn comes.
    QList<QSharedPointer<Subscription>> asked;
    std::copy_if(m_subscriptions.cbegin(), m_subscriptions.cend(), std::back_inserter(asked),
                 [&event](const auto &s) { return s->codes.contains(event.getCode()); });
    for (const auto &subscription : std::as_const(asked)) {
        if (subscription->enabled && subscription->listener)
            subscription->listener->handleEvent(event);
    }
}
