#ifndef TESTS_HOST_NOTIFIEDLISTENER_H
#define TESTS_HOST_NOTIFIEDLISTENER_H

#include "host/BaseActivityListener.h"
#include "host/Event.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>
#include <utility>

//! Writes "NAME CODE" into a journal for each event, then reacts.
class NotifiedListener : public BaseActivityListener
{
public:
    using Reaction = std::function<void()>;

    NotifiedListener(QString name, QStringList &journal)
        : BaseActivityListener(nullptr)
        , m_name(std::move(name))
        , m_journal(journal)
    {
    }

    //! What the listener does on the next event; once only.
    void onNextEvent(Reaction reaction) { m_reaction = std::move(reaction); }

    void handleEvent(const Event &event) override
    {
        m_journal << QStringLiteral("%1 %2").arg(m_name).arg(event.getCode());
        // Taken out first: the reaction may destroy the listener.
        if (const Reaction reaction = std::exchange(m_reaction, nullptr))
            reaction();
    }

private:
    QString m_name;
    QStringList &m_journal;
    Reaction m_reaction;
};

#endif // TESTS_HOST_NOTIFIEDLISTENER_H
