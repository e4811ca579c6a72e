#include "tests/model/RealHost.h"

#include "host/ActionArguments.h"
#include "host/Quantity.h"
#include "tests/support/Actions.h"

// What the cashier does, command by command.

namespace model {

void RealHost::carryOut(const Command &command)
{
    switch (command.verb) {
    case Verb::Open:
        return takeUp(newReceipt(command.shape == 0 ? Document::Sale : Document::Return));
    case Verb::Add:
        return add(command);
    case Verb::Quantity:
    case Verb::Modify:
    case Verb::Storno:
        return changePosition(command);
    case Verb::Split:
        return split(command);
    case Verb::Unite:
        return unite(command);
    case Verb::Subtotal:
        return pay(control::Subtotal);
    case Verb::Pay:
        return pay(control::Payment);
    case Verb::SoftCheck:
    case Verb::Order:
        return attach(command);
    case Verb::Setting:
        m_config.set("PackagingControl:allowSaleEmptyTara", command.yes);
        return restart();
    case Verb::Restart:
        return restart();
    case Verb::Reopen:
        return m_plugin->setDocument(inHand());
    case Verb::Switch:
        return turnToOther();
    case Verb::Forget:
        return m_plugin->setDocument(nullptr);
    case Verb::Publish:
        return publish(command);
    }
}

void RealHost::changePosition(const Command &command)
{
    const auto position = inHand()->live(command.which);
    if (!position)
        return;
    if (command.verb == Verb::Storno)
        perform(actions::on(position->getPosnum(), control::StornoPosition),
                EActivityListener::eventPositionStorno, false);
    else
        changeCount(*position, command.quantity, command.verb == Verb::Quantity);
}

void RealHost::add(const Command &command)
{
    const auto &article = articles.at(static_cast<std::size_t>(command.which) % articles.size());
    deliver(about(19, inHand()->newPosition(article, command.quantity)));
}

void RealHost::changeCount(const RealPosition &position, double count, bool withQuantity)
{
    modifiers().set(otherModifier, 1);
    if (withQuantity)
        modifiers().set(modifiers::Quantity, QVariant::fromValue(Quantity(
                                                 count * position.article().pack, quantModeNone)));
    perform(actions::on(position.getPosnum(), control::ApplyModifiers),
            EActivityListener::eventModifierApplied, false);
}

void RealHost::split(const Command &command)
{
    QVariantList elements;
    const auto sources = picked(command);
    for (const auto &source : sources) {
        GoodsItemPtrList pieces;
        double left = source->getCquant();
        for (const double part : command.parts) {
            pieces.append(inHand()->newPosition(source->article(), part));
            left -= part;
        }
        QVariantMap element{{"source", QVariant::fromValue(GoodsItemPtr(source))},
                            {"result", QVariant::fromValue(pieces)}};
        const bool isGone = left < 0.0005;
        if (isGone)
            inHand()->removePosition(source->getPosnum());
        else
            source->setCount(left);
        if (isGone || command.yes) // what is false may be left out
            element.insert("removed", isGone);
        if (command.shape == 5 && elements.isEmpty())
            element.remove("source");
        elements.append(element);
    }
    if (elements.isEmpty())
        return;
    const control::Action action(control::SplitPositions, {});
    if (command.shape == 1 || command.shape == 2)
        action.setArgument("splitpositionsdata", command.shape == 1 ? elements : QVariantList{1});
    if (command.shape != 1 && command.shape != 4)
        action.setArgument("splitPositionsData", elements);
    trigger(ActionTrigger::After, action);
}

void RealHost::unite(const Command &command)
{
    const auto positions = picked(command);
    if (positions.isEmpty())
        return;
    GoodsItemPtrList deleted;
    double count = positions.first()->getCquant();
    for (const auto &position : positions.mid(1)) {
        count += position->getCquant();
        inHand()->removePosition(position->getPosnum());
        deleted.append(position);
    }
    positions.first()->setCount(count);
    const GoodsItemPtrList changed{positions.first()};
    const control::Action action(control::UnitePositions, {});
    const auto set = [&](const char *key, const GoodsItemPtrList &list) {
        action.setArgument(key, QVariant::fromValue(list));
    };
    if (command.shape == 1 || command.shape == 2) {
        set("deletedpositions", command.shape == 1 ? deleted : changed);
        set("changedpositions", command.shape == 1 ? changed : deleted);
    }
    if (command.shape != 1 && command.shape != 4) {
        set("deletedPositions", deleted);
        set("changedPositions", changed);
    }
    trigger(ActionTrigger::After, action);
}

void RealHost::pay(control::EActionType type)
{
    const control::Action action(type, {});
    if (trigger(ActionTrigger::Before, action) == EContext::Continue && type == control::Payment)
        takeUp(newReceipt(Document::Sale));
}

void RealHost::attach(const Command &command)
{
    if (command.verb == Verb::Order)
        inHand()->setOrder(QSharedPointer<Order>::create());
    else
        inHand()->hasSoftCheck = true;
    trigger(ActionTrigger::After, control::Action(control::AddSoftCheck, {}));
}

void RealHost::publish(const Command &command)
{
    constexpr std::array codes{26, 252, 19, 21, 20, 27};
    const int code = codes.at(static_cast<std::size_t>(command.shape) % codes.size());
    const auto &lines = inHand()->lines();
    const auto position = lines.value(command.which % (lines.size() + 1));
    if (code == 20 || code == 27)
        m_plugin->handleEvent(about(code, position)); // nobody subscribes to these
    else
        deliver(about(code, position));
}

void RealHost::turnToOther()
{
    m_inHand = 1 - m_inHand;
    takeUp(inHand() ? inHand() : newReceipt(Document::Sale));
}

void RealHost::restart()
{
    m_late.clear();
    modifiers().clearAll();
    m_plugin.reset();
    m_plugin = m_makePlugin(*this);
    m_plugin->init();
    m_plugin->setDocument(inHand());
    if (inHand()->hasSoftCheck)
        trigger(ActionTrigger::After, control::Action(control::AddSoftCheck, {}));
}

} // namespace model
