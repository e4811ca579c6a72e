#include "tests/model/ModelHost.h"

// What the cashier does, command by command.

namespace model {

void ModelHost::carryOut(const Command &command)
{
    switch (command.verb) {
    case Verb::Open:
        return takeUp(newReceipt(command.shape == 0));
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
        return pay(133);
    case Verb::Pay:
        return pay(144);
    case Verb::SoftCheck:
    case Verb::Order:
        return attach(command);
    case Verb::Setting:
        m_allowSaleEmptyTara = command.yes;
        return restart();
    case Verb::Restart:
        return restart();
    case Verb::Reopen:
        return m_rules->setDocument(inHand());
    case Verb::Switch:
        return turnToOther();
    case Verb::Forget:
        return m_rules->setDocument(nullptr);
    case Verb::Publish:
        return publish(command);
    }
}

void ModelHost::changePosition(const Command &command)
{
    const PositionPtr position = live(command.which);
    if (!position)
        return;
    if (command.verb == Verb::Storno)
        perform(132, position->posnum, 21, false);
    else
        m_wasRefused =
            changeCount(position, command.quantity, command.verb == Verb::Quantity) != Continue;
}

void ModelHost::add(const Command &command)
{
    const auto &article = articles.at(static_cast<std::size_t>(command.which) % articles.size());
    deliver({19, newPosition(article, command.quantity)});
}

Answer ModelHost::changeCount(const PositionPtr &position, double count, bool withQuantity)
{
    modifiers.hasOthers = true;
    if (withQuantity) {
        modifiers.hasQuantity = true;
        modifiers.quantity = count * position->article->pack;
        modifiers.mode = 0;
    }
    return perform(5, position->posnum, 26, false);
}

void ModelHost::split(const Command &command)
{
    std::vector<SplitPosition> splits;
    for (const PositionPtr &source : picked(command)) {
        SplitPosition split{source, {}, false};
        double left = source->count;
        for (const double part : command.parts) {
            split.pieces.push_back(newPosition(*source->article, part));
            left = left - part;
        }
        split.isSourceGone = left < 0.0005;
        if (split.isSourceGone)
            source->isStornoed = true;
        else
            source->setCount(left);
        splits.push_back(split);
    }
    if (splits.empty())
        return;
    if (command.shape == 4) // the plugin is told of nothing
        splits.clear();
    if (command.shape == 5) // the first element has no source
        splits.front().source = nullptr;
    m_rules->afterSplit(splits);
    say("after 233 says 2");
}

void ModelHost::unite(const Command &command)
{
    std::vector<PositionPtr> changed = picked(command);
    if (changed.empty())
        return;
    std::vector<PositionPtr> deleted(changed.begin() + 1, changed.end());
    changed.resize(1);
    double count = changed.front()->count;
    for (const PositionPtr &position : deleted) {
        count = count + position->count;
        position->isStornoed = true;
    }
    changed.front()->setCount(count);
    if (command.shape == 4) {
        deleted.clear();
        changed.clear();
    }
    m_rules->afterUnion(deleted, changed);
    say("after 234 says 2");
}

void ModelHost::pay(int actionType)
{
    if (!m_allowSaleEmptyTara) {
        const Answer answer = m_rules->beforeSubtotal();
        say("before " + std::to_string(actionType) + " says " + std::to_string(answer));
        m_wasRefused = answer != Continue;
        if (m_wasRefused)
            return;
    }
    if (actionType != 144)
        return;
    m_wasClosed = true;
    takeUp(newReceipt(true));
}

void ModelHost::attach(const Command &command)
{
    if (command.verb == Verb::Order)
        inHand()->hasOrder = true;
    else
        inHand()->hasSoftCheck = true;
    m_rules->afterSoftCheck();
    say("after 129 says 2");
}

void ModelHost::publish(const Command &command)
{
    constexpr std::array codes{26, 252, 19, 21, 20, 27};
    const int code = codes.at(static_cast<std::size_t>(command.shape) % codes.size());
    const auto &lines = inHand()->lines;
    const auto which = static_cast<std::size_t>(command.which) % (lines.size() + 1);
    deliver({code, which < lines.size() ? lines[which] : nullptr});
}

void ModelHost::turnToOther()
{
    m_inHand = 1 - m_inHand;
    takeUp(inHand() ? inHand() : newReceipt(true));
}

void ModelHost::takeUp(const ReceiptPtr &receipt)
{
    m_receipts[m_inHand] = receipt;
    m_rules->setDocument(receipt);
}

void ModelHost::restart()
{
    m_late.clear();
    modifiers = {};
    World &world = *this;
    m_rules = std::make_unique<Rules>(world);
    m_isListening = true;
    say("register 6 5 1 0 3");
    say("register 6 233 0 0 5");
    say("register 6 234 0 0 5");
    say("setting PackagingControl:allowSaleEmptyTara true");
    if (!m_allowSaleEmptyTara) {
        say("register 6 133 1 0 1");
        say("register 6 144 1 0 1");
    }
    say("register 6 129 0 0 3");
    say("subscribe 19 21 26 252");
    m_rules->setDocument(inHand());
    if (inHand()->hasSoftCheck) {
        m_rules->afterSoftCheck();
        say("after 129 says 2");
    }
}

} // namespace model
