#ifndef TESTS_RECEIPTS_RECEIPTSTORY_H
#define TESTS_RECEIPTS_RECEIPTSTORY_H

#include "host/ActionArguments.h"
#include "host/Quantity.h"
#include "tests/support/FakeHost.h"
#include "tests/support/Printers.h"
#include "tests/support/TestPlugin.h"

#include <QtCore/QMetaObject>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

//! What a tara holds, as the stories tell it.
struct Tara
{
    int posnum = 0;
    double capacity = 0.0;
    double freeCapacity = 0.0;

    bool operator==(const Tara &other) const = default;
};

//! What goods use of which tara, both by position number.
struct Goods
{
    int posnum = 0;
    QMap<int, double> poured;

    bool operator==(const Goods &other) const = default;
};

inline void PrintTo(const Tara &tara, std::ostream *out)
{
    *out << "tara " << tara.posnum << " of " << tara.capacity << " with " << tara.freeCapacity
         << " free";
}

inline void PrintTo(const Goods &goods, std::ostream *out)
{
    *out << "goods " << goods.posnum << " in";
    for (auto entry = goods.poured.cbegin(); entry != goods.poured.cend(); ++entry)
        *out << " tara " << entry.key() << ": " << entry.value();
}

//! Brings a host's events to a plugin object that is known by its meta-object only.
class EventRelay : public BaseActivityListener
{
public:
    explicit EventRelay(QObject *plugin)
        : BaseActivityListener(nullptr)
        , m_plugin(plugin)
    {
    }

    void handleEvent(const Event &event) override
    {
        EXPECT_TRUE(QMetaObject::invokeMethod(m_plugin, "handleEvent", Qt::DirectConnection,
                                              Q_ARG(Event, event)));
    }

private:
    QObject *m_plugin;
};

//! How the events of a story reach the plugin.
enum class Delivery {
    Notifier,   //!< the plugin is a listener of the host's notifier
    MetaObject, //!< the host calls the slot by its name
};

inline void PrintTo(Delivery delivery, std::ostream *out)
{
    *out << (delivery == Delivery::Notifier ? "Notifier" : "MetaObject");
}

//! A receipt from its opening on. Each story is told once for each way of delivery.
class ReceiptStory : public testing::TestWithParam<Delivery>
{
protected:
    ReceiptStory()
    {
        plugin.init();
        open(host.receipt());
    }

    void open(const QSharedPointer<AbstractDocument> &receipt)
    {
        plugin.setDocument(receipt);
        if (GetParam() == Delivery::MetaObject) {
            host.notifier().disableListener(&plugin);
            host.notifier().subscribe(&relay, {EActivityListener::eventPositionAdded,
                                               EActivityListener::eventPositionStorno,
                                               EActivityListener::eventModifierApplied,
                                               EActivityListener::eventModifierApplied2});
        }
    }

    /*!
     * The cashier enters a new quantity: the plugin is asked first, and the host changes the
     * position if the plugin lets it.
     */
    EContext::Result enterQuantity(int posnum, double quantity)
    {
        const control::Action action(control::ApplyModifiers, {});
        control::args::Core(action).setPositionNumber(posnum);
        host.modifiers().set(modifiers::Quantity,
                             QVariant::fromValue(Quantity(quantity, quantModeNone)));
        const auto answer = FakeHost::trigger(plugin, ActionTrigger::Before, action);
        host.modifiers().clearAll();
        if (answer == EContext::Continue)
            host.changeQuantity(posnum, quantity);
        return answer;
    }

    //! The quantity of a position in the receipt; 0 when it is not there.
    double quantity(int posnum) const
    {
        const auto position = host.receipt()->getPositionByPosnum(posnum);
        return position ? position->getBquant() : 0.0;
    }

    std::vector<Tara> tara() const
    {
        std::vector<Tara> result;
        for (const auto &record : plugin.taraList)
            result.push_back({record->posnum, record->capacity, record->freeCapacity});
        return result;
    }

    //! Tara that is not in the receipt any more goes by the number 0.
    std::vector<Goods> goods() const
    {
        std::vector<Goods> result;
        for (const auto &record : plugin.packagingList) {
            Goods told{record->posnum, {}};
            for (auto used = record->usedTara.cbegin(); used != record->usedTara.cend(); ++used)
                told.poured.insert(posnumOfTara(used.key()), used.value());
            result.push_back(told);
        }
        return result;
    }

    //! What the plugin asked of the host, apart from keeping its records.
    QStringList asked() const
    {
        QStringList result = host.journal;
        result.removeIf([](const QString &line) {
            return line.startsWith("save ") || line.startsWith("load ");
        });
        return result;
    }

    //! A plugin that opens the receipt anew has to find the records of the one at work.
    void expectReopenedIsTheSame() const
    {
        TestPlugin reader;
        reader.setDocument(host.receipt());
        ASSERT_EQ(reader.taraList.size(), plugin.taraList.size());
        for (int i = 0; i < plugin.taraList.size(); ++i)
            EXPECT_EQ(*reader.taraList[i], *plugin.taraList[i]);
        ASSERT_EQ(reader.packagingList.size(), plugin.packagingList.size());
        for (int i = 0; i < plugin.packagingList.size(); ++i)
            EXPECT_EQ(*reader.packagingList[i], *plugin.packagingList[i]);
    }

    FakeHost host;
    TestPlugin plugin;

private:
    int posnumOfTara(const QString &id) const
    {
        for (const auto &record : plugin.taraList) {
            if (record->id == id)
                return record->posnum;
        }
        return 0;
    }

    EventRelay relay{&plugin};
};

#endif // TESTS_RECEIPTS_RECEIPTSTORY_H
