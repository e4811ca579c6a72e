#include "bench/Pairs.h"
#include "bench/Records.h"
#include "host/Event.h"

#include <log4qt/logger.h>

namespace bench {

namespace {

GoodsItemPtr makePosition(int posnum, Tmc::TaraMode mode, double quantity)
{
    auto position = GoodsItemPtr::create(posnum, QSharedPointer<Tmc>::create(mode, 0.5));
    position->setCquant(quantity);
    position->setBquant(quantity);
    return position;
}

Event changed(const GoodsItemPtr &position)
{
    return Event(EActivityListener::eventModifierApplied)
        .addArgument(QStringLiteral("position"), QVariant::fromValue(position));
}

/*!
 * The last goods shrink: every record is looked at to find them, every tara to take them out of
 * one that is over-full. No tara is, so that nothing is logged.
 */
class GoodsShrink
{
public:
    explicit GoodsShrink(int n)
        : m_records(n)
        , m_event(changed(makePosition(n, Tmc::PackagingGoods, 0.4)))
    {
        store(m_records, *m_receipt);
        m_plugin.setDocument(m_receipt);
    }

    void measured() { m_plugin.handleEvent(m_event); }
    void byHand() { store(m_records, *m_byHand); }

    bool same()
    {
        m_receipt->setPluginData(m_plugin.objectName(), QStringLiteral("taraInfo"), {});
        measured();
        byHand();
        return toBytes(*m_receipt) == toBytes(*m_byHand);
    }

private:
    Records m_records;
    Event m_event;
    Plugin m_plugin;
    QSharedPointer<Document> m_receipt = QSharedPointer<Document>::create();
    QSharedPointer<Document> m_byHand = QSharedPointer<Document>::create();
};

//! The last tara, which is empty, becomes one piece more and one less in turn. This is logged.
template <Floor Kind>
class TaraResize
{
public:
    explicit TaraResize(int n)
        : m_records(n)
        , m_position(makePosition(n - 1, Tmc::Tara, 1))
        , m_event(changed(m_position))
    {
        store(m_records, *m_receipt);
        m_plugin.setDocument(m_receipt);
    }

    void measured()
    {
        m_position->setBquant(3 - m_position->getBquant());
        m_plugin.handleEvent(m_event);
    }

    void byHand()
    {
        TaraInfo &tara = m_records.taras.back();
        const double capacity = 1.5 - tara.capacity;
        if constexpr (Kind == Floor::WithLogLines)
            logger().info(QStringLiteral("Изменение ёмкости тары %1 -> %2"),
                          toLogText(tara.capacity), toLogText(capacity));
        tara.capacity = capacity;
        tara.freeCapacity = tara.capacity;
        store(m_records, *m_byHand);
    }

    bool same()
    {
        measured();
        byHand();
        return toBytes(*m_receipt) == toBytes(*m_byHand);
    }

private:
    Records m_records;
    GoodsItemPtr m_position;
    Event m_event;
    Plugin m_plugin;
    QSharedPointer<Document> m_receipt = QSharedPointer<Document>::create();
    QSharedPointer<Document> m_byHand = QSharedPointer<Document>::create();
};

} // namespace

void addSaves(Pairs &pairs)
{
    for (const int n : {10, 100, 1000})
        addPair<GoodsShrink>(pairs, "save", n, 20);
    for (const int n : {10, 100, 1000})
        addPair<TaraResize<Floor::Bare>>(pairs, "resize", n, 20);
    for (const int n : {10, 100, 1000})
        addPair<TaraResize<Floor::WithLogLines>>(pairs, "resizeLogged", n, 20);
}

} // namespace bench
