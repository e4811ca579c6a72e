#ifndef TESTS_EVENTS_JOURNALINGHOST_H
#define TESTS_EVENTS_JOURNALINGHOST_H

#include "host/ActionArguments.h"
#include "host/ActionQueueController.h"
#include "host/Document.h"
#include "host/EContext.h"
#include "host/Quantity.h"
#include "host/Session.h"

#include <QtCore/QStringList>

// A host's services that note in one journal what they are asked.

using Journal = QStringList;

class JournalingDocument : public Document
{
public:
    explicit JournalingDocument(Journal &journal)
        : m_journal(journal)
    {
    }

    QSharedPointer<GoodsItem> getPositionByPosnum(int posnum) const override
    {
        m_journal << QString("look up %1").arg(posnum);
        return Document::getPositionByPosnum(posnum);
    }

private:
    Journal &m_journal;
};

class JournalingSession : public Session
{
public:
    explicit JournalingSession(Journal &journal)
        : m_journal(journal)
    {
    }

    ModifiersContainer *getModifiers() override
    {
        m_journal << "modifiers";
        return Session::getModifiers();
    }

    //! As `getModifiers`, without an entry.
    ModifiersContainer &current() { return *Session::getModifiers(); }

private:
    Journal &m_journal;
};

class JournalingQueue : public ActionQueueController
{
public:
    explicit JournalingQueue(Journal &journal)
        : m_journal(journal)
    {
    }

    int runAction(const control::Action &action) override
    {
        m_journal << "run " + nameOf(action);
        actions << action;
        if (whenRun)
            whenRun();
        return answer;
    }

    int answer = EContext::Continue;
    QList<control::Action> actions;
    std::function<void()> whenRun;

private:
    static QString nameOf(const control::Action &action)
    {
        switch (action.getType()) {
        case control::ApplyModifiers:
            return "change";
        case control::RemovePosition:
            return "removal";
        default:
            return "something else";
        }
    }

    Journal &m_journal;
};

#endif // TESTS_EVENTS_JOURNALINGHOST_H
