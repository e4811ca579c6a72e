#ifndef TESTS_RECEIPTS_RECEIPTSTORY_H
#define TESTS_RECEIPTS_RECEIPTSTORY_H

#include "tests/receipts/Story.h"

#include <QtCore/QMetaObject>

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
class ReceiptStory : public Story, public testing::WithParamInterface<Delivery>
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

private:
    EventRelay relay{&plugin};
};

#endif // TESTS_RECEIPTS_RECEIPTSTORY_H
