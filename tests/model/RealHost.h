#ifndef TESTS_MODEL_REALHOST_H
#define TESTS_MODEL_REALHOST_H

#include "host/ActivityNotifier.h"
#include "host/Config.h"
#include "host/Session.h"
#include "tests/model/Command.h"
#include "tests/model/RealReceipt.h"
#include "tests/support/TestPlugin.h"

#include <array>
#include <functional>
#include <memory>
#include <string>

class ActionQueueController;
class LoyaltySystemLayer;

namespace model {

class RealHost;

//! The plugin, with identifiers that can be foreseen.
class RealPlugin : public TestPlugin
{
public:
    explicit RealPlugin(RealHost &host)
        : m_host(host)
    {
    }

    void addTrigger(const ActionTrigger &trigger) override;
    QString getId() const override;

private:
    RealHost &m_host;
};

/*!
 * A register with the real plugin in it. It carries out commands, answers what the plugin asks for
 * before the asking call returns, and reports with events. While it lives, the process-wide
 * services are its own.
 */
class RealHost
{
public:
    using MakePlugin = std::function<std::unique_ptr<RealPlugin>(RealHost &)>;

    RealHost(std::uint64_t salt, bool allowSaleEmptyTara, MakePlugin makePlugin);
    ~RealHost();
    Q_DISABLE_COPY_MOVE(RealHost)

    void run(const Command &command);

    //! What commands change while receipt, plugin and settings stay the same.
    struct Moment
    {
        int identifiers;
        RealReceipt::Moment receipt;
        QList<PackagingControl::TaraInfo> taras;
        QList<PackagingControl::PackagingInfo> goods;
    };
    Moment moment() const;
    void returnTo(const Moment &moment);

    //! What was said and asked since the journal was cleared.
    std::string journal;
    const RealPlugin &plugin() const { return *m_plugin; }
    const RealReceipt &receipt() const { return *m_receipts[m_inHand]; }

    // What the services and the plugin turn to.

    void say(const QString &line);
    QString newIdentifier();
    int runQueued(const control::Action &action);
    void storno(const control::Action &action);
    bool ask();

private:
    class Services;

    void carryOut(const Command &command);
    void add(const Command &command);
    void changePosition(const Command &command);
    void split(const Command &command);
    void unite(const Command &command);
    void publish(const Command &command);
    void pay(control::EActionType type);
    void attach(const Command &command);
    void turnToOther();
    void restart();

    bool request(control::EActionType type, int posnum);
    void meanwhile();
    EContext::Result perform(const control::Action &action, EActivityListener::Event code,
                             bool isRequest);
    bool change(const control::Action &action, EActivityListener::Event code, bool isRequest);
    void changeCount(const RealPosition &position, double count, bool withQuantity);
    void report(const Event &event, bool isRequest);
    void deliver(const Event &event);
    void deliverLate();

    EContext::Result trigger(ActionTrigger::Order order, const control::Action &action);
    void takeUp(const QSharedPointer<RealReceipt> &receipt);
    QList<QSharedPointer<RealPosition>> picked(const Command &command) const;
    ModifiersContainer &modifiers() { return *m_session.getModifiers(); }
    const QSharedPointer<RealReceipt> &inHand() const { return m_receipts[m_inHand]; }
    QSharedPointer<RealReceipt> newReceipt(int type);

    std::uint64_t m_salt;
    int m_identifiers = 0;
    int m_receiptNumber = 0;
    std::array<QSharedPointer<RealReceipt>, 2> m_receipts;
    std::size_t m_inHand = 0;

    Session m_session;
    Config m_config;
    std::unique_ptr<Services> m_services;
    MakePlugin m_makePlugin;
    std::unique_ptr<RealPlugin> m_plugin;
    QList<Event> m_late;

    Command m_command; //!< the one that is being carried out
    int m_requests = 0;
    int m_depth = 0;
    bool m_isMeanwhileDone = false;
};

//! A host's way to \a Plugin.
template <typename Plugin>
std::unique_ptr<RealPlugin> make(RealHost &host)
{
    return std::make_unique<Plugin>(host);
}

// What the host's own modifiers, events and actions look like.

//! A modifier that is not the quantity.
inline constexpr auto otherModifier = static_cast<modifiers::Type>(1);
//! Event \a code about \a position; without the argument when that is null.
Event about(int code, const QSharedPointer<RealPosition> &position);

} // namespace model

#endif // TESTS_MODEL_REALHOST_H
