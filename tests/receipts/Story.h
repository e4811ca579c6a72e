#ifndef TESTS_RECEIPTS_STORY_H
#define TESTS_RECEIPTS_STORY_H

#include "host/Quantity.h"
#include "tests/support/Actions.h"
#include "tests/support/FakeHost.h"
#include "tests/support/Printers.h"
#include "tests/support/TestPlugin.h"

#include <QtCore/QLocale>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

//! A host with the plugin in it. The cashier's actions run with the triggers around them.
class Story : public testing::Test
{
protected:
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

    QSharedPointer<GoodsItem> position(int posnum) const
    {
        return host.receipt()->getPositionByPosnum(posnum);
    }
    //! The quantity of a position in the receipt; 0 when it is not there.
    double quantity(int posnum) const
    {
        return position(posnum) ? position(posnum)->getBquant() : 0.0;
    }

    //! "tara 1: 3 of 10 free" for each tara.
    QStringList tara() const { return taraOf(plugin); }
    //! "goods 2: 4 in 1, 3 in 5" for each goods record, with the taras in their order; what is in
    //! tara that there is no more stands behind them.
    QStringList goods() const { return goodsOf(plugin); }
    QStringList records() const { return tara() + goods(); }

    //! The records that the receipt carries, as a plugin that takes it up would restore them.
    QStringList savedRecords() const
    {
        TestPlugin other;
        other.setDocument(host.receipt());
        return taraOf(other) + goodsOf(other);
    }

    FakeHost host;
    TestPlugin plugin;

private:
    //! Exactly: other numbers are other texts.
    static QString exact(double value)
    {
        return QString::number(value, 'g', QLocale::FloatingPointShortest);
    }

    static QStringList taraOf(const TestPlugin &plugin)
    {
        QStringList texts;
        for (const auto &tara : plugin.taraList) {
            texts << QString("tara %1: %2 of %3 free")
                         .arg(QString::number(tara->posnum), exact(tara->freeCapacity),
                              exact(tara->capacity));
        }
        return texts;
    }

    static QStringList goodsOf(const TestPlugin &plugin)
    {
        QStringList texts;
        for (const auto &info : plugin.packagingList) {
            QMap<QString, double> left = info->usedTara;
            QStringList uses;
            for (const auto &tara : plugin.taraList) {
                if (left.contains(tara->id))
                    uses << exact(left.take(tara->id)) + QString(" in %1").arg(tara->posnum);
            }
            for (const double lost : std::as_const(left))
                uses << exact(lost) + " in lost tara";
            texts << QString("goods %1: %2")
                         .arg(info->posnum)
                         .arg(uses.isEmpty() ? "none" : uses.join(", "));
        }
        return texts;
    }
};

#endif // TESTS_RECEIPTS_STORY_H
