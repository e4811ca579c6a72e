#include "bench/BareCalls.h"
#include "bench/Pairs.h"
#include "bench/Records.h"
#include "host/ActionArguments.h"
#include "host/Config.h"

namespace bench {

namespace {

//! An event that the plugin did not ask for.
class OtherEvent
{
public:
    explicit OtherEvent(int) {}

    void measured() { m_listener->handleEvent(m_event); }
    void byHand() { m_bare->handleEvent(m_event); }

    bool same()
    {
        measured();
        return m_plugin.taraList.isEmpty() && m_plugin.packagingList.isEmpty();
    }

private:
    Event m_event{EActivityListener::eventError};
    Plugin m_plugin;
    BaseActivityListener *m_listener = &m_plugin;
    std::unique_ptr<BareCalls> m_bare = makeBareCalls();
};

//! A trigger before an action that concerns no tara, called as the host calls it.
template <control::EActionType Type>
class IdleTrigger
{
public:
    explicit IdleTrigger(int)
    {
        Singleton<Config>::instance()->set(QStringLiteral("PackagingControl:allowSaleEmptyTara"),
                                           false);
        m_receipt->addPosition(GoodsItemPtr::create(1, QSharedPointer<Tmc>::create()));
        m_plugin.init();
        m_plugin.setDocument(m_receipt);
        control::args::Core(m_action).setPositionNumber(1);
        m_trigger =
            m_plugin.activeTriggers(EContext::Receipt, Type, ActionTrigger::Before).constFirst();
    }

    void measured() { benchmark::DoNotOptimize(m_trigger.call(m_action)); }
    void byHand() { benchmark::DoNotOptimize(m_bare->callback(m_action)); }
    bool same() { return m_trigger.call(m_action) == m_bare->callback(m_action); }

private:
    Plugin m_plugin;
    QSharedPointer<Document> m_receipt = QSharedPointer<Document>::create();
    control::Action m_action{Type, {}};
    ActionTrigger m_trigger{
        EContext::Receipt,    Type, ActionTrigger::Before, {}, ActionTrigger::DefaultResult,
        ActionTrigger::Normal};
    std::unique_ptr<BareCalls> m_bare = makeBareCalls();
};

} // namespace

void addCalls(Pairs &pairs)
{
    addPair<OtherEvent>(pairs, "otherEvent", 1, 1000);
    addPair<IdleTrigger<control::Subtotal>>(pairs, "subtotal", 1, 1000);
    addPair<IdleTrigger<control::ApplyModifiers>>(pairs, "modifiers", 1, 1000);
}

} // namespace bench
