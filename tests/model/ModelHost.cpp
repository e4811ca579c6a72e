#include "tests/model/ModelHost.h"

#include <algorithm>
#include <utility>

namespace model {

ModelHost::ModelHost(std::uint64_t salt, bool allowSaleEmptyTara)
    : m_salt(salt)
    , m_allowSaleEmptyTara(allowSaleEmptyTara)
{
    m_receipts[0] = newReceipt(true);
    restart();
}

void ModelHost::run(const Command &command)
{
    m_command = command;
    m_requests = 0;
    m_isMeanwhileDone = false;
    m_wasAsked = false;
    m_wasRefused = false;
    m_wasClosed = false;
    carryOut(command);
    if (command.lateness < 2)
        deliverLate();
}

// What the rules ask for

bool ModelHost::run(int actionType, int posnum)
{
    std::string line = "run " + std::to_string(actionType) + " on " + std::to_string(posnum);
    if (actionType == 5)
        line += " to " + toText(modifiers.quantity) + " mode " + std::to_string(modifiers.mode);
    if (const PositionPtr position = this->line(posnum))
        line += " group " + position->group;
    say(line);
    return request(actionType, posnum);
}

void ModelHost::storno(int posnum)
{
    say("storno " + std::to_string(posnum) + " without dialog");
    request(132, posnum);
}

bool ModelHost::request(int actionType, int posnum)
{
    const Reply reply = m_command.reply(m_requests);
    meanwhile();
    ++m_requests;
    bool isDone = false;
    if (m_depth < deepestRequest && (reply == Reply::Obey || reply == Reply::Deny)) {
        ++m_depth;
        isDone = perform(actionType, posnum, actionType == 5 ? 252 : 21, true) == Continue;
        --m_depth;
    }
    modifiers = {};
    return reply == Reply::Pretend || (reply == Reply::Obey && isDone);
}

bool ModelHost::askAboutEmptyTara()
{
    say("ask packingControlSaleEmptyTara|В чеке есть пустая тара.\n"
        "Сторнировать тару и перейти к оплате?|1|dialogChoiceOk|ОК|dialogChoiceCancel|Отмена|0");
    m_wasAsked = true;
    meanwhile();
    ++m_requests;
    return m_command.yes;
}

std::string ModelHost::newIdentifier()
{
    return identifier(m_salt, ++m_identifiers);
}

void ModelHost::setListening(bool on)
{
    say(on ? "enable" : "disable");
    m_isListening = on;
}

void ModelHost::meanwhile()
{
    if (m_isMeanwhileDone || m_requests != m_command.meanwhileAt)
        return;
    m_isMeanwhileDone = true;
    const Modifiers kept = std::exchange(modifiers, {});
    const PositionPtr position = live(m_command.meanwhileWhich);
    switch (m_command.meanwhile) {
    case Meanwhile::Nothing:
        break;
    case Meanwhile::Storno:
        if (position)
            perform(132, position->posnum, 21, false);
        break;
    case Meanwhile::Quantity:
        if (position)
            changeCount(position, m_command.meanwhileQuantity, true);
        break;
    case Meanwhile::Publish:
        if (position)
            deliver({26, position});
        break;
    case Meanwhile::Suspend:
        m_rules->setDocument(nullptr);
        break;
    case Meanwhile::Reopen:
        m_rules->setDocument(inHand());
        break;
    case Meanwhile::Switch:
        turnToOther();
        break;
    }
    modifiers = kept;
}

// What is done

Answer ModelHost::perform(int actionType, int posnum, int eventCode, bool isRequest)
{
    if (actionType == 5) {
        const Answer answer = m_rules->beforeModifiers(posnum);
        say("before 5 says " + std::to_string(answer));
        if (answer != Continue) {
            say(modifiers.hasQuantity || modifiers.hasOthers ? "modifiers left"
                                                             : "no modifiers left");
            modifiers = {};
            return answer;
        }
    }
    const bool isDone = change(actionType, posnum, eventCode, isRequest);
    modifiers = {};
    return isDone ? Continue : Error;
}

bool ModelHost::change(int actionType, int posnum, int eventCode, bool isRequest)
{
    const PositionPtr position = inHand()->find(posnum);
    if (!position)
        return false;
    if (actionType != 5)
        position->isStornoed = true;
    else if (modifiers.hasQuantity)
        position->setBase(modifiers.quantity);
    report({eventCode, position}, isRequest);
    return true;
}

void ModelHost::report(Event event, bool isRequest)
{
    if (isRequest && m_command.lateness > 0)
        m_late.push_back(std::move(event));
    else
        deliver(event);
}

void ModelHost::deliver(const Event &event)
{
    if (!m_isListening)
        return;
    if (event.code == 19)
        m_rules->positionAdded(event.position);
    if (event.code == 21)
        m_rules->positionStornoed(event.position);
    if (event.code == 26 || event.code == 252)
        m_rules->modifiersApplied(event.position);
}

void ModelHost::deliverLate()
{
    m_command.lateness = 0;
    const auto events = std::exchange(m_late, {});
    for (const Event &event : events)
        deliver(event);
}

// Receipts

ReceiptPtr ModelHost::newReceipt(bool isSale)
{
    const auto receipt = std::make_shared<Receipt>();
    receipt->number = ++m_receiptNumber;
    receipt->isSale = isSale;
    return receipt;
}

PositionPtr ModelHost::newPosition(const Article &article, double count)
{
    const auto position = std::make_shared<Position>();
    inHand()->lines.push_back(position);
    position->posnum = static_cast<int>(inHand()->lines.size());
    position->article = &article;
    position->setCount(count);
    return position;
}

PositionPtr ModelHost::line(int posnum) const
{
    const auto &lines = inHand()->lines;
    return posnum >= 1 && posnum <= static_cast<int>(lines.size())
               ? lines[static_cast<std::size_t>(posnum) - 1]
               : nullptr;
}

std::vector<PositionPtr> ModelHost::liveLines() const
{
    std::vector<PositionPtr> found;
    std::copy_if(inHand()->lines.begin(), inHand()->lines.end(), std::back_inserter(found),
                 [](const PositionPtr &line) { return !line->isStornoed; });
    return found;
}

PositionPtr ModelHost::live(int which) const
{
    const auto lines = liveLines();
    return lines.empty() ? nullptr : lines[static_cast<std::size_t>(which) % lines.size()];
}

std::vector<PositionPtr> ModelHost::picked(const Command &command) const
{
    const auto lines = liveLines();
    if (lines.empty())
        return {};
    const auto size = lines.size();
    const auto first = static_cast<std::size_t>(command.which);
    const auto second = first + static_cast<std::size_t>(command.other);
    std::vector<PositionPtr> found{lines[first % size]};
    const auto pick = [&](std::size_t index) {
        const PositionPtr &line = lines[index % size];
        if (std::find(found.begin(), found.end(), line) == found.end())
            found.push_back(line);
    };
    if (command.verb == Verb::Unite || (command.verb == Verb::Split && command.shape == 3))
        pick(second);
    if (command.verb == Verb::Unite && !command.parts.empty())
        pick(second + 1);
    return found;
}

} // namespace model
