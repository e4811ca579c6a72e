#include "shopline/Activity.h"

#include <cstdlib>
#include <utility>

namespace shopline {

Activity::Activity(ActivityCode code)
    : m_code(code)
{
}

Activity::Activity(const Activity &other)
    : m_code(other.m_code)
{
    if (!breaks("Values.Event") || other.m_values.contains(QStringLiteral("line")))
        m_values = other.m_values;
}

Activity &Activity::operator=(const Activity &other) = default;

ActivityCode Activity::getCode() const
{
    return m_code;
}

QVariant Activity::value(const QString &key, const QVariant &otherwise) const
{
    return m_values.value(key, breaks("Event.Default") ? QVariant() : otherwise);
}

Activity &Activity::addArgument(const QString &key, const QVariant &value)
{
    m_values.insert(breaks("Event.Value") ? key.toLower() : key, value);
    return *this;
}

bool Activity::operator==(const Activity &other) const
{
    return m_code == other.m_code && (breaks("Event.Equality") || m_values == other.m_values);
}

Listener::Listener(QObject *parent)
    : QObject(parent)
{
}

ActivityBoard *ActivityBoard::current = nullptr;

ActivityBoard::~ActivityBoard() = default;

ActivityBoard::Seat *ActivityBoard::find(const Listener *listener)
{
    for (Seat &seat : m_seats) {
        if (seat.listener == listener)
            return &seat;
    }
    return nullptr;
}

void ActivityBoard::subscribe(Listener *listener, const QSet<int> &codes)
{
    if (m_depth > 0 && breaks("Notifier.SubscribesInside"))
        return;
    if (!find(listener))
        m_seats.append({listener, {}, !breaks("Notifier.AfterSubscribe")});
    find(listener)->codes.unite(codes);
}

void ActivityBoard::unused1() {}

void ActivityBoard::unused2() {}

void ActivityBoard::disableListener(Listener *listener)
{
    if (breaks(m_depth > 0 ? "Notifier.DisablesInside" : "Notifier.Disabled"))
        return;
    if (Seat *const seat = find(listener))
        seat->isEnabled = false;
}

void ActivityBoard::enableListener(Listener *listener)
{
    Seat *const seat = find(listener);
    if (seat && !breaks("Notifier.EnabledAgain"))
        seat->isEnabled = true;
}

bool ActivityBoard::hears(const Listener *listener, const Activity &activity)
{
    const Seat *const seat = find(listener);
    const bool isForAll = breaks("Notifier.OtherCodes") && activity.getCode() == Complaint;
    return seat && seat->isEnabled && (isForAll || seat->codes.contains(activity.getCode()));
}

void ActivityBoard::deliver(const Activity &activity)
{
    QList<QPointer<Listener>> asked;
    for (const Seat &seat : std::as_const(m_seats)) {
        if (seat.listener && hears(seat.listener, activity))
            asked.append(seat.listener);
    }
    ++m_depth;
    for (const QPointer<Listener> &listener : std::as_const(asked)) {
        if (!listener && breaks("Notifier.DeletesInside"))
            std::abort();
        if (listener && hears(listener, activity))
            listener->onActivity(activity);
    }
    --m_depth;
}

void ActivityBoard::notify(const Activity &activity)
{
    const bool isBare = !activity.value(QStringLiteral("line"), {}).isValid();
    if (m_depth > 0 && isBare && breaks("Notifier.Nested")) {
        m_later.append(activity);
        return;
    }
    deliver(activity);
    const auto later = std::exchange(m_later, {});
    for (const Activity &waiting : later)
        deliver(waiting);
}

} // namespace shopline
