#ifndef TESTS_TRIGGERS_TRIGGERTEST_H
#define TESTS_TRIGGERS_TRIGGERTEST_H

#include "tests/support/Actions.h"
#include "tests/support/FakeHost.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Printers.h"
#include "tests/support/TestPlugin.h"

#include <gtest/gtest.h>

#include <memory>

/*!
 * A plugin with a current receipt and the subtotal guarded, whose callbacks are reached as the host
 * reaches them: through the triggers that it registered.
 */
template <class Plugin>
class TriggerTest : public testing::Test
{
protected:
    TriggerTest()
    {
        host.config().set("PackagingControl:allowSaleEmptyTara", false);
        plugin.init();
        plugin.setDocument(host.receipt());
        host.journal.clear();
    }

    //! The answer of the one trigger for \a action. Not finding exactly one is a failure.
    EContext::Result call(ActionTrigger::Order order, const control::Action &action)
    {
        const auto found = plugin.activeTriggers(EContext::Receipt, action.getType(), order);
        if (found.size() != 1) {
            ADD_FAILURE() << found.size() << " triggers for action " << action.getType();
            return EContext::Cancel;
        }
        return found.constFirst().call(action);
    }

    EContext::Result before(const control::Action &action)
    {
        return call(ActionTrigger::Before, action);
    }
    EContext::Result after(const control::Action &action)
    {
        return call(ActionTrigger::After, action);
    }

    //! The storno of empty tara by itself, as a subtotal would start it.
    bool storno() { return plugin.stornoAllEmptyTara(control::Action(control::Subtotal, {})); }

    //! A position of goods sold into tara, in the receipt, without a record.
    GoodsItemPtr goods(int posnum, double quantity)
    {
        return host.putPosition(posnum, Tmc::PackagingGoods, QVariant(), quantity, quantity);
    }

    FakeHost host;
    LogCapture log;
    Plugin plugin;
};

//! Position numbers of the records of a list, in its order.
template <class Record>
QList<int> posnumsOf(const QList<QSharedPointer<Record>> &list)
{
    QList<int> posnums;
    for (const auto &record : list)
        posnums << record->posnum;
    return posnums;
}

#endif // TESTS_TRIGGERS_TRIGGERTEST_H
