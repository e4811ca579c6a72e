#include "tests/support/FakeHost.h"

#include "host/ActionArguments.h"
#include "host/BaseActivityListener.h"
#include "host/Quantity.h"

#include <utility>

class FakeDocument : public Document
{
public:
    FakeDocument(FakeHost &host, int type)
        : Document(type)
        , m_host(host)
    {
    }

    void setDocumentSwitch(bool on) override
    {
        Document::setDocumentSwitch(on);
        m_host.journal << (on ? "switch on" : "switch off");
    }

    QVariant getPluginData(const QString &pluginId, const QString &key,
                           const QVariant &defaultValue) const override
    {
        m_host.journal << "load " + key;
        return Document::getPluginData(pluginId, key, defaultValue);
    }

    void setPluginData(const QString &pluginId, const QString &key, const QVariant &value) override
    {
        m_host.journal << "save " + key;
        Document::setPluginData(pluginId, key, value);
    }

private:
    FakeHost &m_host;
};

class FakeActionQueue : public ActionQueueController
{
public:
    explicit FakeActionQueue(FakeHost &host)
        : m_host(host)
    {
    }

    int runAction(const control::Action &action) override
    {
        return m_host.run(action) ? EContext::Continue : EContext::Error;
    }

private:
    FakeHost &m_host;
};

class FakeDocumentLogic : public DocumentLogic
{
public:
    explicit FakeDocumentLogic(FakeHost &host)
        : m_host(host)
    {
    }

    bool stornoPosition(const control::Action &action) override { return m_host.run(action); }

private:
    FakeHost &m_host;
};

namespace {

class FakeDialog : public Dialog
{
public:
    explicit FakeDialog(FakeHost &host)
        : m_host(host)
    {
    }

    bool showQuestion(const tr::Tr &question, int, const tr::Tr &, const tr::Tr &, int) override
    {
        m_host.journal << "ask " + question.key();
        return m_host.dialogAnswer;
    }

private:
    FakeHost &m_host;
};

class FakeLoyalty : public LoyaltySystemLayer
{
public:
    explicit FakeLoyalty(FakeHost &host)
        : m_host(host)
    {
    }

    void updateDocument(const QSharedPointer<AbstractDocument> &) override
    {
        m_host.journal << "loyalty";
    }

private:
    FakeHost &m_host;
};

} // namespace

class FakeHost::ErrorListener : public BaseActivityListener
{
public:
    explicit ErrorListener(FakeHost &host)
        : BaseActivityListener(nullptr)
        , m_host(host)
    {
    }

    void handleEvent(const Event &event) override
    {
        m_host.journal << "error " + event.value("errorText", QVariant()).value<tr::Tr>().key();
        m_host.errors << event;
    }

private:
    FakeHost &m_host;
};

FakeHost::FakeHost()
    : m_notifier(new ActivityNotifier)
    , m_config(new Config)
    , m_session(new Session)
    , m_queue(new FakeActionQueue(*this))
    , m_loyalty(new FakeLoyalty(*this))
    , m_errorListener(new ErrorListener(*this))
    , m_installed(m_notifier.get(), m_config.get(), m_session.get(), m_queue.get(), m_loyalty.get(),
                  new FakeDialog(*this), new FakeDocumentLogic(*this))
{
    m_notifier->subscribe(m_errorListener.get(), {EActivityListener::eventError});
    newReceipt();
}

FakeHost::~FakeHost() = default;

void FakeHost::newReceipt(int type)
{
    m_receipt.reset(new FakeDocument(*this, type));
}

QSharedPointer<GoodsItem> FakeHost::putPosition(int posnum, int taraMode,
                                                const QVariant &taraCapacity, double count,
                                                double base)
{
    const auto tmc = QSharedPointer<Tmc>::create(taraMode, taraCapacity);
    const auto position = QSharedPointer<GoodsItem>::create(posnum, tmc);
    position->setCquant(count);
    position->setBquant(base);
    m_receipt->addPosition(position);
    return position;
}

QSharedPointer<GoodsItem> FakeHost::addTara(int posnum, double capacity, double count)
{
    const auto position = putPosition(posnum, Tmc::Tara, capacity, count, count);
    publish(EActivityListener::eventPositionAdded, position);
    return position;
}

QSharedPointer<GoodsItem> FakeHost::addGoods(int posnum, double quantity)
{
    const auto position = putPosition(posnum, Tmc::PackagingGoods, QVariant(), quantity, quantity);
    publish(EActivityListener::eventPositionAdded, position);
    return position;
}

QSharedPointer<GoodsItem> FakeHost::addOther(int posnum, double quantity)
{
    const auto position = putPosition(posnum, Tmc::NoTara, QVariant(), quantity, quantity);
    publish(EActivityListener::eventPositionAdded, position);
    return position;
}

void FakeHost::changeQuantity(int posnum, double quantity, EActivityListener::Event code)
{
    const auto position = m_receipt->getPositionByPosnum(posnum);
    position->setCquant(quantity);
    position->setBquant(quantity);
    publish(code, position);
}

QStringList FakeHost::asked() const
{
    QStringList result = journal;
    result.removeIf(
        [](const QString &line) { return line.startsWith("save ") || line.startsWith("load "); });
    return result;
}

bool FakeHost::storno(int posnum)
{
    const auto position = m_receipt->getPositionByPosnum(posnum);
    if (!m_receipt->removePosition(posnum))
        return false;
    publish(EActivityListener::eventPositionStorno, position);
    return true;
}

void FakeHost::publish(EActivityListener::Event code, const QSharedPointer<GoodsItem> &position)
{
    m_notifier->notify(Event(code).addArgument("position", QVariant::fromValue(position)));
}

EContext::Result FakeHost::trigger(const BasicPlugin &plugin, ActionTrigger::Order order,
                                   const control::Action &action)
{
    const auto triggers = plugin.activeTriggers(EContext::Receipt, action.getType(), order);
    for (const ActionTrigger &trigger : triggers) {
        const EContext::Result result = trigger.call(action);
        if (result != EContext::Continue)
            return result;
    }
    return EContext::Continue;
}

void FakeHost::deliverLate()
{
    const auto events = std::exchange(m_lateEvents, {});
    for (const Event &event : events)
        m_notifier->notify(event);
}

ModifiersContainer &FakeHost::modifiers()
{
    return *m_session->getModifiers();
}

Config &FakeHost::config()
{
    return *m_config;
}

ActivityNotifier &FakeHost::notifier()
{
    return *m_notifier;
}

bool FakeHost::refuses(int posnum) const
{
    return refuseEverything || refusedPositions.contains(posnum);
}

bool FakeHost::run(const control::Action &action)
{
    const int posnum = control::args::Core(action).positionNumber();
    if (action.getType() == control::RemovePosition)
        return takeOut("remove", posnum);
    if (action.getType() == control::StornoPosition)
        return takeOut("storno", posnum);

    const auto quantity = modifiers().value(modifiers::Quantity).value<Quantity>();
    modifiers().clearAll();
    journal << QString("change %1 to %2").arg(posnum).arg(quantity.amount(), 0, 'f', 3);
    const auto position = m_receipt->getPositionByPosnum(posnum);
    if (refuses(posnum) || !position)
        return false;
    position->setCquant(quantity.amount());
    position->setBquant(quantity.amount());
    report(EActivityListener::eventModifierApplied2, position);
    return true;
}

bool FakeHost::takeOut(const QString &verb, int posnum)
{
    journal << QString("%1 %2").arg(verb).arg(posnum);
    const auto position = m_receipt->getPositionByPosnum(posnum);
    if (refuses(posnum) || !position)
        return false;
    m_receipt->removePosition(posnum);
    report(EActivityListener::eventPositionStorno, position);
    return true;
}

void FakeHost::report(EActivityListener::Event code, const QSharedPointer<GoodsItem> &position)
{
    if (late)
        m_lateEvents << Event(code).addArgument("position", QVariant::fromValue(position));
    else
        publish(code, position);
}
