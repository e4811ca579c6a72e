#include "tests/model/RealHost.h"

#include "host/ActionArguments.h"
#include "host/Quantity.h"
#include "tests/model/RealServices.h"
#include "tests/support/Actions.h"

#include <utility>

namespace model {

Event about(int code, const QSharedPointer<RealPosition> &position)
{
    Event event(static_cast<EActivityListener::Event>(code));
    if (position)
        event.addArgument("position", QVariant::fromValue(GoodsItemPtr(position)));
    return event;
}

void RealPlugin::addTrigger(const ActionTrigger &trigger)
{
    m_host.say(QStringLiteral("register %1 %2 %3 %4 %5")
                   .arg(trigger.getContext())
                   .arg(trigger.getActionType())
                   .arg(trigger.getOrder())
                   .arg(trigger.getResult())
                   .arg(trigger.getPriority()));
    TestPlugin::addTrigger(trigger);
}

QString RealPlugin::getId() const
{
    return m_host.newIdentifier();
}

RealHost::RealHost(std::uint64_t salt, bool allowSaleEmptyTara, MakePlugin makePlugin)
    : m_salt(salt)
    , m_services(new Services(*this))
    , m_makePlugin(std::move(makePlugin))
{
    m_config.set("PackagingControl:allowSaleEmptyTara", allowSaleEmptyTara);
    m_receipts[0] = newReceipt(Document::Sale);
    restart();
}

RealHost::~RealHost() = default;

void RealHost::say(const QString &line)
{
    journal += line.toStdString();
    journal += '\n';
}

QString RealHost::newIdentifier()
{
    return QString::fromStdString(identifier(m_salt, ++m_identifiers));
}

void RealHost::run(const Command &command)
{
    m_command = command;
    m_requests = 0;
    m_isMeanwhileDone = false;
    carryOut(command);
    if (command.lateness < 2)
        deliverLate();
}

// What the plugin asks for

int RealHost::runQueued(const control::Action &action)
{
    const int posnum = control::args::Core(action).positionNumber();
    QString line = QStringLiteral("run %1 on %2").arg(action.getType()).arg(posnum);
    if (action.getType() == control::ApplyModifiers) {
        const auto quantity = modifiers().value(modifiers::Quantity).value<Quantity>();
        line += " to " + QString::fromStdString(toText(quantity.amount())) + " mode "
                + QString::number(quantity.mode());
    }
    if (const auto position = inHand()->line(posnum))
        line += " group " + position->getGroupId();
    say(line);
    return request(action.getType(), posnum) ? EContext::Continue
                                             : (m_requests % 2 == 0 ? 0 : 1 + 2 * (posnum % 2));
}

void RealHost::storno(const control::Action &action)
{
    const control::args::Storno arguments(action);
    say(QStringLiteral("storno %1 %2 dialog")
            .arg(arguments.positionNumber())
            .arg(arguments.withoutDialog() ? "without" : "with"));
    request(action.getType(), arguments.positionNumber());
}

bool RealHost::request(control::EActionType type, int posnum)
{
    const Reply reply = m_command.reply(m_requests);
    meanwhile();
    ++m_requests;
    bool isDone = false;
    if (m_depth < deepestRequest && (reply == Reply::Obey || reply == Reply::Deny)) {
        ++m_depth;
        isDone = perform(actions::on(posnum, type),
                         type == control::ApplyModifiers ? EActivityListener::eventModifierApplied2
                                                         : EActivityListener::eventPositionStorno,
                         true)
                 == EContext::Continue;
        --m_depth;
    }
    modifiers().clearAll();
    return reply == Reply::Pretend || (reply == Reply::Obey && isDone);
}

bool RealHost::ask()
{
    meanwhile();
    ++m_requests;
    return m_command.yes;
}

void RealHost::meanwhile()
{
    if (m_isMeanwhileDone || m_requests != m_command.meanwhileAt)
        return;
    m_isMeanwhileDone = true;
    const ModifiersContainer kept = std::exchange(modifiers(), ModifiersContainer());
    const auto position = inHand()->live(m_command.meanwhileWhich);
    switch (m_command.meanwhile) {
    case Meanwhile::Nothing:
        break;
    case Meanwhile::Storno:
        if (position)
            perform(actions::on(position->getPosnum(), control::StornoPosition),
                    EActivityListener::eventPositionStorno, false);
        break;
    case Meanwhile::Quantity:
        if (position)
            changeCount(*position, m_command.meanwhileQuantity, true);
        break;
    case Meanwhile::Publish:
        if (position)
            deliver(about(26, position));
        break;
    case Meanwhile::Suspend:
        m_plugin->setDocument(nullptr);
        break;
    case Meanwhile::Reopen:
        m_plugin->setDocument(inHand());
        break;
    case Meanwhile::Switch:
        turnToOther();
        break;
    }
    modifiers() = kept;
}

// What is done

EContext::Result RealHost::perform(const control::Action &action, EActivityListener::Event code,
                                   bool isRequest)
{
    const EContext::Result result = trigger(ActionTrigger::Before, action);
    if (result != EContext::Continue) {
        const bool areLeft =
            modifiers().isSet(modifiers::Quantity) || modifiers().isSet(otherModifier);
        say(areLeft ? "modifiers left" : "no modifiers left");
        modifiers().clearAll();
        return result;
    }
    const bool isDone = change(action, code, isRequest);
    modifiers().clearAll();
    return isDone ? EContext::Continue : EContext::Error;
}

bool RealHost::change(const control::Action &action, EActivityListener::Event code, bool isRequest)
{
    const int posnum = control::args::Core(action).positionNumber();
    if (!inHand()->getPositionByPosnum(posnum))
        return false;
    const auto position = inHand()->line(posnum);
    if (action.getType() != control::ApplyModifiers)
        inHand()->removePosition(posnum);
    else if (modifiers().isSet(modifiers::Quantity))
        position->setBase(modifiers().value(modifiers::Quantity).value<Quantity>().amount());
    report(about(code, position), isRequest);
    return true;
}

void RealHost::report(const Event &event, bool isRequest)
{
    if (isRequest && m_command.lateness > 0)
        m_late.append(event);
    else
        deliver(event);
}

void RealHost::deliver(const Event &event)
{
    m_services->notifier().notify(event);
}

void RealHost::deliverLate()
{
    m_command.lateness = 0;
    const auto events = std::exchange(m_late, {});
    for (const Event &event : events)
        deliver(event);
}

EContext::Result RealHost::trigger(ActionTrigger::Order order, const control::Action &action)
{
    const auto triggers = m_plugin->activeTriggers(EContext::Receipt, action.getType(), order);
    for (const ActionTrigger &trigger : triggers) {
        const EContext::Result result = trigger.call(action);
        say(QStringLiteral("%1 %2 says %3")
                .arg(order == ActionTrigger::Before ? "before" : "after")
                .arg(action.getType())
                .arg(result));
        if (order == ActionTrigger::Before && result != EContext::Continue)
            return result;
    }
    return EContext::Continue;
}

// Receipts

QSharedPointer<RealReceipt> RealHost::newReceipt(int type)
{
    return QSharedPointer<RealReceipt>::create(*this, ++m_receiptNumber, type);
}

void RealHost::takeUp(const QSharedPointer<RealReceipt> &receipt)
{
    m_receipts[m_inHand] = receipt;
    m_plugin->setDocument(receipt);
}

QList<QSharedPointer<RealPosition>> RealHost::picked(const Command &command) const
{
    const auto lines = inHand()->liveLines();
    if (lines.isEmpty())
        return {};
    QList<QSharedPointer<RealPosition>> found;
    const auto pick = [&](int index) {
        const auto &line = lines.at(index % lines.size());
        if (!found.contains(line))
            found.append(line);
    };
    pick(command.which);
    if (command.verb == Verb::Unite || (command.verb == Verb::Split && command.shape == 3))
        pick(command.which + command.other);
    if (command.verb == Verb::Unite && !command.parts.empty())
        pick(command.which + command.other + 1);
    return found;
}

} // namespace model
