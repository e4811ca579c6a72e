#include "till/actions/ActionRunner.h"

#include "host/ActionArguments.h"
#include "host/ActivityNotifier.h"
#include "host/BasicPlugin.h"
#include "host/Event.h"
#include "host/Quantity.h"
#include "till/language/TillMessages.h"
#include "till/language/Translator.h"

#include <QtCore/QJsonArray>

namespace till {

namespace {

QJsonObject argumentsOf(const control::Action &action)
{
    QJsonObject fields;
    const auto arguments = action.getArguments();
    for (auto entry = arguments.cbegin(); entry != arguments.cend(); ++entry)
        fields.insert(entry.key(), QJsonValue::fromVariant(entry.value()));
    return fields;
}

QVariantMap describeSplit(const QSharedPointer<Position> &source, const GoodsItemPtrList &pieces,
                          bool removed)
{
    return {{"source", QVariant::fromValue(GoodsItemPtr(source))},
            {"result", QVariant::fromValue(pieces)},
            {"removed", removed}};
}

//! The pieces that \a base units in packs of \a pack are: those that were asked for, if it was
//! pieces, for the quotient may differ from them.
double countOf(const control::Action &action, double base, double pack)
{
    const QVariant asked = action.getArguments().value(argument::count);
    return asked.toDouble() * pack == base ? asked.toDouble() : base / pack;
}

//! What is left of a position below this many pieces is nothing.
constexpr double nothing = 0.0005;

} // namespace

ActionRunner::ActionRunner(HostProgram &program, HostServices &services, Notes &notes,
                           BasicPlugin *plugin)
    : m_program(program)
    , m_services(services)
    , m_notes(notes)
    , m_plugin(plugin)
{
}

EContext::Result ActionRunner::run(const control::Action &action, Origin origin)
{
    m_notes.add("action", describe(action, origin));

    EContext::Result result = EContext::Continue;
    {
        const Notes::Nesting inside(m_notes);
        result = runTriggers(action, ActionTrigger::Before);
        m_reason = {m_program.lastShown(), {}};
        if (origin == Origin::Cashier)
            m_wasStoppedByPlugin = result != EContext::Continue;
        if (result == EContext::Continue)
            result = carryOut(action, origin);
        if (result == EContext::Continue)
            runTriggers(action, ActionTrigger::After);
    }
    m_services.modifiers().clearAll();
    m_notes.add("result", describeResult(action, result));
    return result;
}

QJsonObject ActionRunner::describe(const control::Action &action, Origin origin)
{
    QJsonObject fields = argumentsOf(action);
    fields.insert("type", action.getType());
    fields.insert("origin", origin == Origin::Cashier ? "cashier" : "program");
    const QVariant quantity = m_services.modifiers().value(modifiers::Quantity);
    if (action.getType() == control::ApplyModifiers && quantity.isValid())
        fields.insert("base", quantity.value<Quantity>().amount());
    return fields;
}

QJsonObject ActionRunner::describeResult(const control::Action &action,
                                         EContext::Result result) const
{
    if (result != EContext::Error)
        return {{"type", action.getType()}, {"result", result}};
    return {{"type", action.getType()},
            {"result", result},
            {"key", m_reason.key()},
            {"text", Translator().text(m_reason)}};
}

EContext::Result ActionRunner::fail(const Message &reason)
{
    m_reason = reason;
    return EContext::Error;
}

EContext::Result ActionRunner::noPosition(int posnum)
{
    return fail({messages::tillNoPosition(), {QString::number(posnum)}});
}

EContext::Result ActionRunner::runTriggers(const control::Action &action,
                                           ActionTrigger::Order order)
{
    if (!m_plugin)
        return EContext::Continue;
    const auto triggers = m_plugin->activeTriggers(EContext::Receipt, action.getType(), order);
    for (const ActionTrigger &trigger : triggers) {
        EContext::Result result = EContext::Continue;
        {
            const Notes::Nesting inside(m_notes);
            result = trigger.call(action);
        }
        m_notes.add("trigger", {{"type", action.getType()},
                                {"order", order == ActionTrigger::Before ? "before" : "after"},
                                {"priority", trigger.getPriority()},
                                {"result", result}});
        // After the action nothing can be stopped any more.
        if (order == ActionTrigger::Before && result != EContext::Continue)
            return result;
    }
    return EContext::Continue;
}

EContext::Result ActionRunner::carryOut(const control::Action &action, Origin origin)
{
    switch (action.getType()) {
    case control::AddPosition:
        return add(action);
    case control::ApplyModifiers:
        return applyModifiers(action, origin);
    case control::StornoPosition:
        return storno(action);
    case control::RemovePosition:
        return remove(control::args::Core(action).positionNumber());
    case control::SplitPositions:
        return split(action);
    case control::UnitePositions:
        return unite(action);
    case control::AddSoftCheck:
        return attach(action);
    case control::OpenReceipt:
        return EContext::Continue; // the receipt was made by the register
    case control::Subtotal:
    case control::Payment:
        return enter(ReceiptState::Subtotal);
    case control::CloseReceipt:
        return enter(ReceiptState::Closed);
    case control::CancelReceipt:
        return enter(ReceiptState::Cancelled);
    }
    return fail(told("till", "the register knows no such action"));
}

EContext::Result ActionRunner::add(const control::Action &action)
{
    const auto arguments = action.getArguments();
    const auto article = m_findArticle(arguments.value(argument::article).toString());
    if (!article)
        return fail({messages::tillNoArticle(), {arguments.value(argument::article).toString()}});
    const auto position = m_receipt->add(article, arguments.value(argument::count).toDouble());
    control::args::Core(action).setPositionNumber(position->getPosnum());
    m_receipt->setState(ReceiptState::Open);
    m_receipt->touch();
    publish(EActivityListener::eventPositionAdded, position);
    return EContext::Continue;
}

EContext::Result ActionRunner::applyModifiers(const control::Action &action, Origin origin)
{
    const int posnum = control::args::Core(action).positionNumber();
    const QVariant quantity = m_services.modifiers().value(modifiers::Quantity);
    if (!m_receipt->getPositionByPosnum(posnum))
        return noPosition(posnum);
    if (!quantity.isValid())
        return fail(told("till", "no quantity was given"));
    const auto position = m_receipt->line(posnum);
    const double base = quantity.value<Quantity>().amount();
    const double count = countOf(action, base, position->article().pack);
    if (!m_receipt->hasPlaceFor(position->article(), count, position.get())) {
        m_program.show(messages::tillCannotFollow());
        return fail({messages::tillCannotFollow(), {}});
    }
    position->setQuantity(count, base);
    m_receipt->note(*position);
    m_receipt->setState(ReceiptState::Open);
    m_receipt->touch();
    publish(origin == Origin::Cashier ? EActivityListener::eventModifierApplied
                                      : EActivityListener::eventModifierApplied2,
            position);
    return EContext::Continue;
}

EContext::Result ActionRunner::storno(const control::Action &action)
{
    const control::args::Storno arguments(action);
    if (!m_receipt->getPositionByPosnum(arguments.positionNumber()))
        return noPosition(arguments.positionNumber());
    if (!arguments.withoutDialog()
        && !m_program.ask(
            {messages::tillStornoPosition(), messages::tillYes(), messages::tillNo()}))
        return EContext::Cancel;
    return remove(arguments.positionNumber());
}

EContext::Result ActionRunner::remove(int posnum)
{
    if (!m_receipt->storno(posnum))
        return noPosition(posnum);
    m_receipt->setState(ReceiptState::Open);
    m_receipt->touch();
    publish(EActivityListener::eventPositionStorno, m_receipt->line(posnum));
    return EContext::Continue;
}

EContext::Result ActionRunner::split(const control::Action &action)
{
    const int posnum = control::args::Core(action).positionNumber();
    if (!m_receipt->getPositionByPosnum(posnum))
        return noPosition(posnum);
    const auto source = m_receipt->line(posnum);
    const auto article = QSharedPointer<Article>::create(source->article());
    double left = source->getCquant();
    GoodsItemPtrList pieces;
    const auto parts = action.getArguments().value(argument::parts).toList();
    for (const QVariant &part : parts) {
        const auto piece = m_receipt->add(article, part.toDouble());
        left -= part.toDouble();
        pieces.append(piece);
    }
    const bool removed = left < nothing;
    if (removed) {
        m_receipt->storno(posnum);
    } else {
        source->setCount(left);
        m_receipt->note(*source);
    }
    m_receipt->setState(ReceiptState::Open);
    m_receipt->touch();
    action.setArgument("splitPositionsData", QVariantList{describeSplit(source, pieces, removed)});
    return EContext::Continue;
}

EContext::Result ActionRunner::unite(const control::Action &action)
{
    const auto numbers = action.getArguments().value(argument::positions).toList();
    const auto survivor = m_receipt->line(numbers.constFirst().toInt());
    double count = survivor->getCquant();
    double base = survivor->getBquant();
    GoodsItemPtrList deleted;
    for (const QVariant &number : numbers.mid(1)) {
        const auto position = m_receipt->line(number.toInt());
        count += position->getCquant();
        base += position->getBquant();
        m_receipt->storno(position->getPosnum());
        deleted.append(position);
    }
    survivor->setQuantity(count, base);
    m_receipt->note(*survivor);
    m_receipt->setState(ReceiptState::Open);
    m_receipt->touch();
    action.setArgument("deletedPositions", QVariant::fromValue(deleted));
    action.setArgument("changedPositions", QVariant::fromValue(GoodsItemPtrList{survivor}));
    return EContext::Continue;
}

EContext::Result ActionRunner::attach(const control::Action &action)
{
    const auto arguments = action.getArguments();
    const QString order = arguments.value(argument::order).toString();
    if (order.isEmpty())
        m_receipt->addSoftCheck(arguments.value(argument::softCheck).toString());
    else
        m_receipt->setOrder(QSharedPointer<Order>(new Order{order}));
    return EContext::Continue;
}

EContext::Result ActionRunner::enter(ReceiptState state)
{
    m_receipt->setState(state);
    return EContext::Continue;
}

void ActionRunner::publish(EActivityListener::Event code, const QSharedPointer<Position> &position)
{
    m_services.notifier().notify(
        Event(code).addArgument("position", QVariant::fromValue(GoodsItemPtr(position))));
}

} // namespace till
