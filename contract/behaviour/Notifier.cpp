#include "contract/Checks.h"

#include "host/ActivityNotifier.h"
#include "host/BaseActivityListener.h"
#include "host/Event.h"

#include <QtCore/QStringList>

#include <functional>
#include <memory>
#include <utility>

namespace contract {

namespace {

constexpr auto heard = EActivityListener::eventModifierApplied2;
constexpr auto another = EActivityListener::eventModifierApplied;

//! Notes who is called, and reacts once.
class Listener : public BaseActivityListener
{
public:
    Listener(QString name, QStringList &journal)
        : BaseActivityListener(nullptr)
        , m_name(std::move(name))
        , m_journal(journal)
    {
    }

    void handleEvent(const Event &event) override
    {
        m_journal.append(m_name + QString::number(int(event.getCode())));
        if (const auto reaction = std::exchange(reacts, nullptr))
            reaction();
    }

    std::function<void()> reacts;

private:
    QString m_name;
    QStringList &m_journal;
};

ActivityNotifier &notifier()
{
    return *Singleton<ActivityNotifier>::instance();
}

//! Two listeners, "a" before "b", of event 252.
struct Audience
{
    explicit Audience(bool isEnabled = true)
    {
        for (Listener *const listener : {a.get(), b.get()}) {
            notifier().subscribe(listener, {heard});
            if (isEnabled)
                notifier().enableListener(listener);
        }
    }
    ~Audience()
    {
        // A notifier may keep what nobody unsubscribes: from here on nothing is published.
        notifier().disableListener(a.get());
        if (b)
            notifier().disableListener(b.get());
    }
    Q_DISABLE_COPY_MOVE(Audience)

    //! What was heard, in order, is what it has to be.
    Finding hear(const QStringList &needed) const
    {
        return judge({{journal == needed,
                       QStringLiteral("called: %1, and not: %2")
                           .arg(journal.join(QLatin1Char(' ')), needed.join(QLatin1Char(' ')))}});
    }

    QStringList journal;
    std::unique_ptr<Listener> a = std::make_unique<Listener>(QStringLiteral("a"), journal);
    std::unique_ptr<Listener> b = std::make_unique<Listener>(QStringLiteral("b"), journal);
};

Finding subscribed()
{
    const Audience audience(false);
    notifier().notify(Event(heard));
    return audience.hear({"a252", "b252"});
}

Finding otherCodes()
{
    const Audience audience;
    notifier().notify(Event(EActivityListener::eventError));
    return audience.hear({});
}

Finding disabled()
{
    const Audience audience;
    notifier().disableListener(audience.a.get());
    notifier().notify(Event(heard));
    return audience.hear({"b252"});
}

Finding enabledAgain()
{
    const Audience audience;
    notifier().disableListener(audience.b.get());
    notifier().enableListener(audience.b.get());
    notifier().notify(Event(heard));
    return audience.hear({"a252", "b252"});
}

Finding subscribesInside()
{
    const Audience audience;
    Listener late(QStringLiteral("late"), const_cast<QStringList &>(audience.journal));
    audience.a->reacts = [&late] {
        notifier().subscribe(&late, {another});
        notifier().enableListener(&late);
    };
    notifier().notify(Event(heard));
    notifier().notify(Event(another));
    notifier().disableListener(&late);
    return audience.hear({"a252", "b252", "late26"});
}

Finding disablesInside()
{
    const Audience audience;
    audience.a->reacts = [&audience] { notifier().disableListener(audience.a.get()); };
    notifier().notify(Event(heard));
    notifier().notify(Event(heard));
    return audience.hear({"a252", "b252", "b252"});
}

Finding deletesInside()
{
    Audience audience;
    audience.a->reacts = [&audience] { audience.b.reset(); };
    notifier().notify(Event(heard));
    notifier().notify(Event(heard));
    return audience.hear({"a252", "a252"});
}

Finding nested()
{
    const Audience audience;
    notifier().subscribe(audience.b.get(), {another});
    audience.a->reacts = [] { notifier().notify(Event(another)); };
    notifier().notify(Event(heard));
    return audience.hear({"a252", "b26", "b252"});
}

} // namespace

Checks notifierChecks()
{
    return {
        {"Notifier.AfterSubscribe", "an event reaches who subscribed to its code, at once",
         "no position is noticed", subscribed},
        {"Notifier.OtherCodes", "an event reaches nobody who did not subscribe to its code",
         "the plugin is called for what it does not know", otherCodes},
        {"Notifier.Disabled", "no event reaches a disabled listener",
         "a suspended plugin goes on changing the receipt", disabled},
        {"Notifier.EnabledAgain", "events reach a listener that is enabled again",
         "the plugin sleeps on from the first return to the next start", enabledAgain},
        {"Notifier.SubscribesInside", "a listener may subscribe another inside an event",
         "the host crashes, or a listener hears nothing", subscribesInside},
        {"Notifier.DisablesInside", "a listener may disable itself inside an event",
         "the host crashes when a receipt gets a soft-check", disablesInside},
        {"Notifier.DeletesInside", "a listener may delete another inside an event",
         "the host crashes when a plugin ends", deletesInside},
        {"Notifier.Nested", "an event that is published inside another is delivered at once",
         "tara and goods differ when the asking call returns", nested},
    };
}

} // namespace contract
