#ifndef TESTS_SUPPORT_FAKEHOST_H
#define TESTS_SUPPORT_FAKEHOST_H

#include "host/BasicPlugin.h"
#include "host/Document.h"
#include "host/Event.h"
#include "host/Tr.h"
#include "tests/support/InstalledServices.h"

#include <QtCore/QSet>
#include <QtCore/QStringList>

#include <memory>

/*!
 * A host that works, in memory: it holds one receipt, carries out the actions that the plugin asks
 * for and reports them with events, before the asking call returns. It can be told to refuse, or to
 * report late. While it lives, the process-wide services are its own.
 *
 * The journal lists what the host was asked, in order, one text each:
 *   switch off | switch on | loyalty | save taraInfo | save packagingInfo | load taraInfo | ...
 *   change 5 to 1.000 | remove 5 | storno 2 | ask packingControlSaleEmptyTara | error KEY
 */
class FakeHost
{
public:
    FakeHost();
    ~FakeHost();
    Q_DISABLE_COPY_MOVE(FakeHost)

    //! The current receipt. `newReceipt` puts another in its place.
    QSharedPointer<Document> receipt() const { return m_receipt; }
    void newReceipt(int type = Document::Sale);

    //! A new position in the receipt, without an event: \a count pieces, \a base quantity.
    QSharedPointer<GoodsItem> putPosition(int posnum, int taraMode, const QVariant &taraCapacity,
                                          double count, double base);

    // What a cashier does: changes the receipt and publishes the event.

    //! Adds tara: \a count pieces of \a capacity each; the base quantity is \a count too.
    QSharedPointer<GoodsItem> addTara(int posnum, double capacity, double count = 1);
    //! Adds goods sold into tara.
    QSharedPointer<GoodsItem> addGoods(int posnum, double quantity);
    //! Adds goods that have nothing to do with tara.
    QSharedPointer<GoodsItem> addOther(int posnum, double quantity);
    //! Sets both quantities and publishes \a code.
    void changeQuantity(int posnum, double quantity,
                        EActivityListener::Event code = EActivityListener::eventModifierApplied);
    //! Takes the position out and publishes event 21. False when there is none.
    bool storno(int posnum);

    //! Publishes an event about \a position.
    void publish(EActivityListener::Event code, const QSharedPointer<GoodsItem> &position);

    /*!
     * Runs the active triggers of \a plugin, in their order, up to the first that does not
     * continue; the answer of that one, or `EContext::Continue`.
     */
    static EContext::Result trigger(const BasicPlugin &plugin, ActionTrigger::Order order,
                                    const control::Action &action);

    // What the host answers to the plugin.

    bool refuseEverything = false; //!< no action is carried out
    QSet<int> refusedPositions;    //!< actions on these are not carried out
    bool late = false; //!< actions change the receipt; their events wait for `deliverLate`
    void deliverLate();
    bool dialogAnswer = false; //!< the cashier's answer to every question

    QStringList journal; //!< what the host was asked
    //! The same without the keeping of the plugin's records.
    QStringList asked() const;
    QList<Event> errors; //!< every event 29 that was published

    ModifiersContainer &modifiers();
    Config &config();
    ActivityNotifier &notifier();

private:
    friend class FakeActionQueue;
    friend class FakeDocument;
    friend class FakeDocumentLogic;
    class ErrorListener;

    bool refuses(int posnum) const;
    bool run(const control::Action &action);
    bool takeOut(const QString &verb, int posnum);
    void report(EActivityListener::Event code, const QSharedPointer<GoodsItem> &position);

    QSharedPointer<Document> m_receipt;
    QList<Event> m_lateEvents;
    std::unique_ptr<ActivityNotifier> m_notifier;
    std::unique_ptr<Config> m_config;
    std::unique_ptr<Session> m_session;
    std::unique_ptr<ActionQueueController> m_queue;
    std::unique_ptr<LoyaltySystemLayer> m_loyalty;
    std::unique_ptr<ErrorListener> m_errorListener;
    const InstalledServices m_installed; //!< gone before the services are
};

#endif // TESTS_SUPPORT_FAKEHOST_H
