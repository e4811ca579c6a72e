#include "fuzz/ReceiptRun.h"

#include "fuzz/Promises.h"
#include "fuzz/UnrulyHost.h"
#include "fuzz/VariantTree.h"
#include "host/ActionArguments.h"
#include "host/Quantity.h"

#include <QtCore/QStringList>

namespace fuzz {

namespace {

constexpr int MostSteps = 60;
constexpr int DeepestNesting = 4;

//! Its identifiers count, so that a finding is found again.
class CountingPlugin : public TestPlugin
{
public:
    QString getId() const override
    {
        return QStringLiteral("{%1}").arg(++m_given, 36, 10, QLatin1Char('0'));
    }

private:
    mutable int m_given = 0;
};

class ReceiptRun
{
public:
    explicit ReceiptRun(QByteArrayView bytes)
        : m_bytes(bytes)
        , m_unruly(
              m_bytes, [this] { step(); },
              [this](const control::Action &action) {
                  return FakeHost::trigger(m_plugin, ActionTrigger::Before, action);
              })
    {
        m_host.config().set("PackagingControl:allowSaleEmptyTara", m_bytes.seldom(8));
        m_plugin.init();
    }

    QString play()
    {
        reopen();
        while (m_fault.isEmpty() && !m_bytes.isEmpty() && m_steps < MostSteps) {
            step();
            note(m_promises.broken(m_plugin));
        }
        return m_fault;
    }

private:
    using Step = void (ReceiptRun::*)();

    //! One thing that happens, possibly while the plugin waits for the host.
    void step()
    {
        static constexpr Step steps[] = {
            &ReceiptRun::add,         &ReceiptRun::changeCount,  &ReceiptRun::storno,
            &ReceiptRun::anyEvent,    &ReceiptRun::askQuantity,  &ReceiptRun::split,
            &ReceiptRun::unite,       &ReceiptRun::subtotal,     &ReceiptRun::changeHost,
            &ReceiptRun::deliverLate, &ReceiptRun::otherReceipt, &ReceiptRun::reopen,
            &ReceiptRun::saveAndLoad, &ReceiptRun::softCheck,    &ReceiptRun::add};
        if (m_depth >= DeepestNesting || ++m_steps > MostSteps)
            return;
        ++m_depth;
        (this->*steps[m_bytes.choice(static_cast<int>(std::size(steps)))])();
        --m_depth;
    }

    // What a cashier does.

    void add()
    {
        const int posnum = m_bytes.posnum();
        if (m_host.receipt()->getPositionByPosnum(posnum))
            return;
        const int mode = m_bytes.choice(3);
        const QVariant capacity = nearlyAlways(m_bytes, [this] { return m_bytes.number(); });
        const double quantity = m_bytes.number();
        const double base = m_bytes.seldom(4) ? m_bytes.number() : quantity;
        m_host.publish(EActivityListener::eventPositionAdded,
                       m_host.putPosition(posnum, mode, capacity, quantity, base));
    }

    void changeCount()
    {
        const int posnum = m_bytes.posnum();
        if (m_host.receipt()->getPositionByPosnum(posnum))
            m_host.changeQuantity(posnum, m_bytes.number(),
                                  m_bytes.seldom(2) ? EActivityListener::eventModifierApplied2
                                                    : EActivityListener::eventModifierApplied);
    }

    void storno() { m_host.storno(m_bytes.posnum()); }

    // What a host tells that is out of order.

    void anyEvent()
    {
        static constexpr int codes[] = {19, 21, 26, 252, 29, 0};
        const int code = m_bytes.seldom(16) ? m_bytes.raw<int>() : codes[m_bytes.choice(6)];
        Event event(static_cast<EActivityListener::Event>(code));
        if (!m_bytes.seldom(12))
            event.addArgument("position", positionOrAnything());
        if (m_bytes.seldom(2))
            m_host.notifier().notify(event);
        else
            m_plugin.handleEvent(event);
    }

    void askQuantity()
    {
        if (!m_bytes.seldom(4))
            m_host.modifiers().set(modifiers::Quantity, nearlyAlways(m_bytes, [this] {
                                       return QVariant::fromValue(
                                           Quantity(m_bytes.number(), quantModeNone));
                                   }));
        const control::Action action(control::ApplyModifiers, {});
        action.setArgument("positionNumber",
                           nearlyAlways(m_bytes, [this] { return m_bytes.posnum(); }));
        const qsizetype told = m_host.errors.size();
        const EContext::Result result = m_plugin.beforeApplyModifiers(action);
        const bool isRefused = result == EContext::Error;
        if (!isRefused && result != EContext::Continue)
            note("another answer than continue or error before modifiers are applied");
        if (m_host.errors.size() - told != (isRefused ? 1 : 0))
            note("a quantity that is refused without its message, or the message without that");
        if (isRefused && m_host.modifiers().isSet(modifiers::Quantity))
            note("a quantity is still set although it was refused");
    }

    void split()
    {
        QVariantMap element{{"source", positionOrAnything()},
                            {"result", positionsOrAnything()},
                            {"removed", anything(m_bytes)}};
        if (m_bytes.seldom(8))
            element.remove("source");
        const control::Action action(control::SplitPositions, {});
        setArgument(
            action, "splitPositionsData", nearlyAlways(m_bytes, [&] {
                return QVariantList{element, nearlyAlways(m_bytes, [&] { return element; })};
            }));
        expect(EContext::Continue, m_plugin.afterSplitPositions(action), "after a split");
        note(m_promises.unsaved(m_plugin));
    }

    void unite()
    {
        const control::Action action(control::UnitePositions, {});
        setArgument(action, "deletedPositions", positionsOrAnything());
        setArgument(action, "changedPositions", positionsOrAnything());
        expect(EContext::Continue, m_plugin.afterUnitePositions(action), "after a union");
        note(m_promises.unsaved(m_plugin));
    }

    void subtotal()
    {
        const control::Action action(m_bytes.seldom(2) ? control::Payment : control::Subtotal, {});
        const EContext::Result result = m_plugin.beforeSubtotal(action);
        if (result != EContext::Continue && result != EContext::Cancel)
            note("another answer than continue or cancel before the subtotal");
    }

    void softCheck()
    {
        const control::Action action(control::AddSoftCheck, {{"softCheck", anything(m_bytes)}});
        expect(EContext::Continue, m_plugin.afterSoftcheck(action), "after a soft-check");
        if (m_plugin.heldDocument())
            note("a document is held after a soft-check");
    }

    // What the host is like.

    void changeHost()
    {
        m_host.refuseEverything = m_bytes.seldom(4);
        m_host.late = m_bytes.seldom(4);
        m_host.refusedPositions = {m_bytes.posnum()};
    }

    void deliverLate() { m_host.deliverLate(); }

    //! Another document in place of this one, as it comes from somewhere.
    void otherReceipt()
    {
        m_host.newReceipt(m_bytes.seldom(4) ? m_bytes.raw<int>() : int(Document::Sale));
        if (m_bytes.seldom(8))
            m_host.receipt()->setOrder(QSharedPointer<Order>::create());
        reopen();
    }

    //! The receipt in hand with other data, handed over anew.
    void reopen()
    {
        if (m_bytes.seldom(16)) {
            m_plugin.setDocument(nullptr);
            return;
        }
        const auto receipt = m_host.receipt();
        m_promises.watch(receipt);
        receipt->setPluginData("PackagingControl", "taraInfo", taraData(m_bytes));
        receipt->setPluginData("PackagingControl", "packagingInfo", packagingData(m_bytes));
        m_plugin.setDocument(receipt);
        if (m_plugin.heldDocument() == receipt)
            note(m_promises.unrestored(m_plugin));
    }

    void saveAndLoad()
    {
        m_plugin.savePluginData();
        note(m_promises.unsaved(m_plugin));
    }

    // Arguments.

    QSharedPointer<GoodsItem> position()
    {
        if (m_bytes.seldom(4))
            return m_bytes.seldom(8) ? nullptr : loosePosition(m_bytes);
        const auto positions = m_host.receipt()->getPositionList();
        return positions.isEmpty() ? loosePosition(m_bytes)
                                   : positions[m_bytes.choice(static_cast<int>(positions.size()))];
    }

    QVariant positionOrAnything()
    {
        return nearlyAlways(m_bytes, [this] { return QVariant::fromValue(position()); });
    }

    QVariant positionsOrAnything()
    {
        return nearlyAlways(m_bytes, [this] {
            GoodsItemPtrList positions;
            for (int size = m_bytes.choice(4); size > 0; --size)
                positions.append(position());
            return QVariant::fromValue(positions);
        });
    }

    void setArgument(const control::Action &action, const QString &key, const QVariant &value)
    {
        if (!m_bytes.seldom(8))
            action.setArgument(key, value);
        if (m_bytes.seldom(8))
            action.setArgument(key.toLower(), nearlyAlways(m_bytes, [&] { return value; }));
    }

    // Findings. The first one stays.

    void note(const QString &fault)
    {
        if (m_fault.isEmpty())
            m_fault = fault;
    }

    void expect(EContext::Result expected, EContext::Result result, const QString &when)
    {
        if (result != expected)
            note("a wrong answer " + when);
    }

    Bytes m_bytes;
    FakeHost m_host;
    UnrulyHost m_unruly;
    CountingPlugin m_plugin;
    Promises m_promises;
    QString m_fault;
    int m_steps = 0;
    int m_depth = 0;
};

} // namespace

QString playReceipt(QByteArrayView bytes)
{
    return ReceiptRun(bytes).play();
}

} // namespace fuzz
