#ifndef TESTS_EVENTS_RECEIPTEVENTS_H
#define TESTS_EVENTS_RECEIPTEVENTS_H

#include "host/ActionArguments.h"
#include "host/ActionQueueController.h"
#include "host/LoyaltySystemLayer.h"
#include "tests/support/FakeHost.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Printers.h"
#include "tests/support/TestPlugin.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <utility>

using TaraInfo = PackagingControl::TaraInfo;
using PackagingInfo = PackagingControl::PackagingInfo;

//! Stands before the host's action queue while it lives: it sees each action first.
class ActionInterceptor : public ActionQueueController
{
public:
    //! Answers for the queue; may hand the action on to \a host, and may do anything else besides.
    using Answer = std::function<int(const control::Action &action, ActionQueueController &host)>;

    explicit ActionInterceptor(Answer answer)
        : m_answer(std::move(answer))
    {
    }

    int runAction(const control::Action &action) override
    {
        return m_answer(action, m_installed.before());
    }

private:
    Answer m_answer;
    const Installed<ActionQueueController> m_installed{this};
};

inline int positionNumber(const control::Action &action)
{
    return control::args::Core(action).positionNumber();
}

//! The loyalty layer in the host's place; it notes which receipts it is told of.
class LoyaltyOfReceipts : public LoyaltySystemLayer
{
public:
    void updateDocument(const QSharedPointer<AbstractDocument> &document) override
    {
        told << document;
    }

    QList<QSharedPointer<AbstractDocument>> told;

private:
    const Installed<LoyaltySystemLayer> m_installed{this};
};

//! A plugin at work on an empty sale receipt.
class ReceiptEvents : public testing::Test
{
protected:
    ReceiptEvents()
    {
        plugin.init();
        plugin.setDocument(host.receipt());
        host.journal.clear();
    }

    // A receipt as it stands after some events, without those: positions with their records.

    //! \a count pieces that have \a capacity together.
    void standsTara(int posnum, const QString &id, double capacity, double freeCapacity,
                    int count = 1)
    {
        host.putPosition(posnum, Tmc::Tara, capacity / count, count, count);
        plugin.putTara(posnum, id, capacity, freeCapacity);
    }

    void standsGoods(int posnum, double quantity, const QMap<QString, double> &usedTara)
    {
        host.putPosition(posnum, Tmc::PackagingGoods, QVariant(), quantity, quantity);
        plugin.putGoods(posnum, usedTara);
    }

    //! The event alone, of a change that the host has made.
    void publishChanged(const QSharedPointer<GoodsItem> &position)
    {
        host.publish(EActivityListener::eventModifierApplied, position);
    }

    QSharedPointer<GoodsItem> position(int posnum) const
    {
        return host.receipt()->getPositionByPosnum(posnum);
    }

    //! The records that the current receipt keeps, as a plugin that opens it would read them.
    void expectSavedRecordsAreThoseOf(const TestPlugin &expected) const
    {
        TestPlugin reader;
        reader.setDocument(host.receipt());
        EXPECT_EQ(valuesOf(reader.taraList), valuesOf(expected.taraList));
        EXPECT_EQ(valuesOf(reader.packagingList), valuesOf(expected.packagingList));
    }

    FakeHost host;
    LogCapture log;
    TestPlugin plugin;
};

#endif // TESTS_EVENTS_RECEIPTEVENTS_H
