#ifndef TILL_COURSE_OBSERVERS_H
#define TILL_COURSE_OBSERVERS_H

#include <QtCore/QList>

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>

namespace till {

//! The token of an observer, who hears for as long as it is kept. It may outlive what is observed.
using Subscription = std::shared_ptr<const void>;

/*!
 * Those who hear of something, in the order in which they came.
 *
 * They may come and go while they hear: one that comes hears from the next time on, one that goes
 * hears no more, not even what is just being told.
 */
template <typename... Arguments>
class Observers
{
public:
    using Observer = std::function<void(Arguments...)>;

    [[nodiscard]] Subscription subscribe(Observer observer)
    {
        const auto token = std::make_shared<const Observer>(std::move(observer));
        add(token);
        return token;
    }
    //! The same of an observer who hears of something else too, with one token for both.
    void add(const std::shared_ptr<const Observer> &token)
    {
        m_observers.removeIf([](const auto &observer) { return observer.expired(); });
        m_observers.append(token);
    }

    bool isEmpty() const
    {
        return std::all_of(m_observers.cbegin(), m_observers.cend(),
                           [](const auto &observer) { return observer.expired(); });
    }

    void tell(Arguments... arguments) const
    {
        const auto observers = m_observers; // who comes meanwhile is not in it
        for (const auto &observer : observers) {
            if (const auto hears = observer.lock())
                (*hears)(arguments...);
        }
    }

private:
    QList<std::weak_ptr<const Observer>> m_observers;
};

} // namespace till

#endif // TILL_COURSE_OBSERVERS_H
