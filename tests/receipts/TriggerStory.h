#ifndef TESTS_RECEIPTS_TRIGGERSTORY_H
#define TESTS_RECEIPTS_TRIGGERSTORY_H

#include "host/ActionQueueController.h"
#include "host/Quantity.h"
#include "tests/support/FakeHost.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Printers.h"
#include "tests/support/TestPlugin.h"
#include "tests/triggers/Actions.h"

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <utility>

//! Whether the shop sells empty tara; only then nothing is asked before the subtotal.
enum class EmptyTara { Forbidden, Allowed };

inline void PrintTo(EmptyTara setting, std::ostream *out)
{
    *out << (setting == EmptyTara::Allowed ? "Allowed" : "Forbidden");
}

//! A register with the plugin in it: the cashier's actions run with the triggers around them.
class Register
{
public:
    explicit Register(EmptyTara setting)
        : m_queue(*this)
    {
        host.config().set("PackagingControl:allowSaleEmptyTara", setting == EmptyTara::Allowed);
        plugin.init();
        plugin.setDocument(host.receipt());
    }
    Q_DISABLE_COPY_MOVE(Register)

    //! The cashier enters another quantity for a position.
    EContext::Result enterQuantity(int posnum, double quantity)
    {
        host.modifiers().set(modifiers::Quantity,
                             QVariant::fromValue(Quantity(quantity, quantModeNone)));
        return perform(actions::on(posnum, control::ApplyModifiers), [=, this] {
            host.modifiers().clearAll();
            host.changeQuantity(posnum, quantity);
        });
    }

    //! The cashier splits \a pieces off a position, which stays with the rest of its quantity.
    EContext::Result splitOff(int posnum, const QList<std::pair<int, double>> &pieces)
    {
        const auto source = position(posnum);
        const auto parts = putPieces(source, pieces);
        for (const auto &part : parts) {
            source->setBquant(source->getBquant() - part->getBquant());
            source->setCquant(source->getBquant());
        }
        return perform(actions::split({actions::splitOf(source, parts, false)}));
    }

    //! The cashier splits a position into \a pieces that take its place.
    EContext::Result splitUp(int posnum, const QList<std::pair<int, double>> &pieces)
    {
        const auto source = position(posnum);
        const auto parts = putPieces(source, pieces);
        host.receipt()->removePosition(posnum);
        return perform(actions::split({actions::splitOf(source, parts, true)}));
    }

    //! The cashier unites \a deleted into \a kept, which takes its quantity.
    EContext::Result uniteInto(int kept, int deleted)
    {
        const auto survivor = position(kept);
        const auto gone = position(deleted);
        survivor->setBquant(survivor->getBquant() + gone->getBquant());
        survivor->setCquant(survivor->getBquant());
        host.receipt()->removePosition(deleted);
        return perform(actions::unite({gone}, {survivor}));
    }

    EContext::Result subtotal() { return perform(control::Action(control::Subtotal, {})); }

    QSharedPointer<GoodsItem> position(int posnum) const
    {
        return host.receipt()->getPositionByPosnum(posnum);
    }

    /*!
     * "tara 1: 3 of 10 free" for each tara, then "goods 2: 4 in 1, 3 in 5" for each goods record
     * with the taras in their order.
     */
    QStringList records() const { return recordsOf(plugin); }

    //! The records that the receipt carries, as a plugin that takes it up would restore them.
    QStringList savedRecords() const
    {
        TestPlugin other;
        other.setDocument(host.receipt());
        return recordsOf(other);
    }

    FakeHost host;
    TestPlugin plugin;

private:
    //! Runs what the plugin asks for as the cashier's own actions run: with the triggers before it.
    class Queue : public ActionQueueController
    {
    public:
        explicit Queue(Register &till)
            : m_till(till)
        {
        }
        int runAction(const control::Action &action) override
        {
            const auto answer = FakeHost::trigger(m_till.plugin, ActionTrigger::Before, action);
            return answer == EContext::Continue ? m_installed.before().runAction(action) : answer;
        }

    private:
        Register &m_till;
        const Installed<ActionQueueController> m_installed{this};
    };

    //! The triggers before \a action, then \a carryOut, then the triggers after it.
    EContext::Result perform(const control::Action &action,
                             const std::function<void()> &carryOut = {})
    {
        const auto answer = FakeHost::trigger(plugin, ActionTrigger::Before, action);
        if (answer != EContext::Continue)
            return answer;
        if (carryOut)
            carryOut();
        return FakeHost::trigger(plugin, ActionTrigger::After, action);
    }

    GoodsItemPtrList putPieces(const GoodsItemPtr &source,
                               const QList<std::pair<int, double>> &pieces)
    {
        GoodsItemPtrList parts;
        for (const auto &[posnum, quantity] : pieces) {
            parts << host.putPosition(posnum, source->getTmc()->getTaraMode(),
                                      source->getTmcTaraCapacity(), quantity, quantity);
        }
        return parts;
    }

    static QStringList recordsOf(const TestPlugin &plugin)
    {
        QStringList texts;
        for (const auto &tara : plugin.taraList) {
            texts << QString("tara %1: %2 of %3 free")
                         .arg(tara->posnum)
                         .arg(tara->freeCapacity)
                         .arg(tara->capacity);
        }
        for (const auto &info : plugin.packagingList) {
            QStringList uses;
            for (const auto &tara : plugin.taraList) {
                if (info->usedTara.contains(tara->id))
                    uses << QString("%1 in %2").arg(info->usedTara[tara->id]).arg(tara->posnum);
            }
            texts << QString("goods %1: %2").arg(info->posnum).arg(uses.join(", "));
        }
        return texts;
    }

    Queue m_queue;
};

#endif // TESTS_RECEIPTS_TRIGGERSTORY_H
