#ifndef TILL_ACTIONS_ACTIONRUNNER_H
#define TILL_ACTIONS_ACTIONRUNNER_H

#include "host/Action.h"
#include "host/ActionTrigger.h"
#include "host/EActivityListener.h"
#include "host/EContext.h"
#include "till/actions/HostServices.h"
#include "till/course/Notes.h"
#include "till/receipt/Receipt.h"

class BasicPlugin;

namespace till {

//! Keys of the action arguments that are the register's own.
namespace argument {
inline const QString article = QStringLiteral("article"); //!< code (QString)
inline const QString count = QStringLiteral("count");     //!< pieces (double)
inline const QString parts = QStringLiteral("parts");     //!< pieces of each part (QVariantList)
inline const QString positions = QStringLiteral("positions"); //!< numbers (QVariantList of int)
inline const QString order = QStringLiteral("order");         //!< number of an order (QString)
inline const QString softCheck = QStringLiteral("softCheck"); //!< number of a soft-check (QString)
} // namespace argument

/*!
 * Carries out actions on the current receipt, all on the same path: the triggers before the action
 * in order of priority, up to the first that does not continue; the action itself with its events;
 * the triggers after it; then the session's modifiers are cleared.
 *
 * Actions that a plugin asks for run nested and synchronous inside the action under way.
 */
class ActionRunner
{
public:
    //! Who asked for an action. What the program asks for is reported as event 252 instead of 26.
    enum class Origin { Cashier, Program };

    //! All must outlive this object; \a plugin may be null.
    ActionRunner(HostProgram &program, HostServices &services, Notes &notes, BasicPlugin *plugin);

    //! The receipt that actions are carried out on; null when there is none.
    void setReceipt(const QSharedPointer<Receipt> &receipt) { m_receipt = receipt; }

    //! Articles of actions that add a position are taken from here.
    using FindArticle = std::function<QSharedPointer<Article>(const QString &code)>;
    void setArticles(FindArticle find) { m_findArticle = std::move(find); }

    EContext::Result run(const control::Action &action, Origin origin);

    //! Whether a trigger stopped the last action of the cashier's before it was carried out.
    bool wasStoppedByPlugin() const { return m_wasStoppedByPlugin; }

    //! Why the last action that ended with an error did.
    const Message &reason() const { return m_reason; }

    //! Runs the triggers after \a action alone, for an action that was carried out before the
    //! receipt was taken up.
    void runTriggersAfter(const control::Action &action)
    {
        runTriggers(action, ActionTrigger::After);
    }

private:
    EContext::Result runTriggers(const control::Action &action, ActionTrigger::Order order);
    EContext::Result carryOut(const control::Action &action, Origin origin);
    //! Ends an action that cannot be carried out.
    EContext::Result fail(const Message &reason);
    EContext::Result noPosition(int posnum);
    QJsonObject describe(const control::Action &action, Origin origin);
    QJsonObject describeResult(const control::Action &action, EContext::Result result) const;

    EContext::Result add(const control::Action &action);
    EContext::Result applyModifiers(const control::Action &action, Origin origin);
    EContext::Result storno(const control::Action &action);
    EContext::Result remove(int posnum);
    EContext::Result split(const control::Action &action);
    EContext::Result unite(const control::Action &action);
    EContext::Result attach(const control::Action &action);
    EContext::Result enter(ReceiptState state);

    void publish(EActivityListener::Event code, const QSharedPointer<Position> &position);

    HostProgram &m_program;
    HostServices &m_services;
    Notes &m_notes;
    BasicPlugin *m_plugin;
    QSharedPointer<Receipt> m_receipt;
    FindArticle m_findArticle;
    bool m_wasStoppedByPlugin = false;
    Message m_reason;
};

} // namespace till

#endif // TILL_ACTIONS_ACTIONRUNNER_H
