#ifndef TILL_ACTIONS_HOSTSERVICES_H
#define TILL_ACTIONS_HOSTSERVICES_H

#include "host/AbstractDocument.h"
#include "host/Action.h"
#include "host/Config.h"
#include "host/Session.h"
#include "till/actions/Front.h"
#include "till/course/Notes.h"

#include <memory>

class ActionQueueController;
class ActivityNotifier;
class LoyaltySystemLayer;

namespace till {

//! What the host's services ask of the register behind them: they take it for their front, too.
class HostProgram : public Front
{
public:
    //! Carries \a action out now, nested in what runs already; an `EContext::Result`.
    virtual int runQueued(const control::Action &action) = 0;
    //! What was shown last in the command that is under way; empty when nothing was.
    virtual tr::Tr lastShown() const = 0;

protected:
    ~HostProgram() = default;
};

/*!
 * The process-wide services of the host, put in place while this object lives: what plugins ask of
 * them reaches the register, and every event, question, message and log line is noted.
 */
class HostServices
{
public:
    //! All three must outlive this object. There is one of each service: while another object has
    //! put its own in place, this one puts none.
    HostServices(HostProgram &program, Notes &notes, Config &settings);
    ~HostServices();
    Q_DISABLE_COPY_MOVE(HostServices)

    //! Whether the services of the process are this object's.
    bool areInPlace() const;

    ActivityNotifier &notifier();
    ModifiersContainer &modifiers();

private:
    class Notifier;
    class MessageListener;
    class LogListener;

    std::unique_ptr<Notifier> m_notifier;
    std::unique_ptr<MessageListener> m_messages;
    std::unique_ptr<Session> m_session;
    std::unique_ptr<ActionQueueController> m_queue;
    std::unique_ptr<LoyaltySystemLayer> m_loyalty;
    std::unique_ptr<LogListener> m_log;
};

} // namespace till

#endif // TILL_ACTIONS_HOSTSERVICES_H
