#ifndef TESTS_RECEIPTS_TRIGGERSTORY_H
#define TESTS_RECEIPTS_TRIGGERSTORY_H

#include "tests/receipts/Story.h"

#include <ostream>
#include <utility>

//! Whether the shop sells empty tara; only then nothing is asked before the subtotal.
enum class EmptyTara { Forbidden, Allowed };

inline void PrintTo(EmptyTara setting, std::ostream *out)
{
    *out << (setting == EmptyTara::Allowed ? "Allowed" : "Forbidden");
}

//! A story in which what the plugin asks for runs with the triggers too.
class TriggerStory : public Story
{
protected:
    explicit TriggerStory(EmptyTara setting)
    {
        host.config().set("PackagingControl:allowSaleEmptyTara", setting == EmptyTara::Allowed);
        plugin.init();
        plugin.setDocument(host.receipt());
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

private:
    //! Runs what the plugin asks for as the cashier's own actions run: with the triggers before it.
    class Queue : public ActionQueueController
    {
    public:
        explicit Queue(TestPlugin &plugin)
            : m_plugin(plugin)
        {
        }
        int runAction(const control::Action &action) override
        {
            const auto answer = FakeHost::trigger(m_plugin, ActionTrigger::Before, action);
            return answer == EContext::Continue ? m_installed.before().runAction(action) : answer;
        }

    private:
        TestPlugin &m_plugin;
        const Installed<ActionQueueController> m_installed{this};
    };

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

    Queue m_queue{plugin};
};

//! The same, told for both settings.
class TriggerStoryOfBoth : public TriggerStory, public testing::WithParamInterface<EmptyTara>
{
protected:
    TriggerStoryOfBoth()
        : TriggerStory(GetParam())
    {
    }
};

#endif // TESTS_RECEIPTS_TRIGGERSTORY_H
