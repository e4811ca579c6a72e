#ifndef TILL_REGISTER_REGISTER_H
#define TILL_REGISTER_REGISTER_H

#include "till/actions/ActionRunner.h"
#include "till/actions/HostServices.h"
#include "till/course/ReceiptNotes.h"
#include "till/goods/Catalogue.h"
#include "till/plugins/PluginLoader.h"
#include "till/receipt/Receipt.h"
#include "till/receipt/TaraState.h"
#include "till/register/Command.h"
#include "till/register/Journal.h"
#include "till/register/Outcome.h"
#include "till/storage/Storage.h"

namespace till {

/*!
 * The register: what a cashier does, command by command. One receipt at a time is the current one.
 *
 * A command is done when it is durable. One that cannot be stored leaves the receipt as the last
 * stored command left it.
 *
 * A question or a message may run an event loop in the middle of a command. Commands that come
 * meanwhile are refused.
 */
class Register final : private HostProgram
{
public:
    //! What a register is made of. All must outlive it.
    struct Parts
    {
        const Catalogue &catalogue;
        Storage &storage;
        const LoadedPlugin *plugin; //!< may be null
        Config &settings;
        Notes &notes;
        Front *front = nullptr; //!< without one every question is answered no
    };

    //! Puts the host's services in place. They are the process's, so that one register can be on.
    explicit Register(const Parts &parts);
    ~Register();
    Q_DISABLE_COPY_MOVE(Register)

    /*!
     * Initialises the plugin and takes up the receipt that was unfinished when the register ended,
     * if any. To be called once, before all else. While another register lives, nothing is done but
     * to say so.
     */
    Result<> start();

    /*!
     * Carries \a command out, the only way to do anything with a receipt: notes that it begins and
     * how it ended, and stores what it did. While another is under way nothing happens, and nothing
     * is noted: the outcome is `Outcome::busy()`.
     */
    Outcome carryOut(const Command &command);

    /*!
     * What the register would refuse \a command for by itself, as carrying it out would tell; done
     * when it would begin. What plugins and the cashier make of it shows only then.
     */
    Outcome check(const Command &command) const;

    //! Whether a command would be refused because something is under way.
    bool isBusy() const { return m_isBusy; }

    //! The receipt that was opened last, also when it is closed; null when there was none.
    QSharedPointer<const Receipt> receipt() const { return m_receipt; }
    //! What the plugin noted in the receipt.
    TaraState taraState() const;
    TaraControl taraControl() const;

    /*!
     * From now on \a observer is told when the receipt may have changed, or which one it is: once
     * at the end of a command and of what a plugin did outside one. It may look at everything;
     * commands are refused still.
     */
    [[nodiscard]] Subscription onReceiptChanged(std::function<void()> observer)
    {
        return m_receiptObservers.subscribe(std::move(observer));
    }

private:
    class UnderWay;

    int runQueued(const control::Action &action) override;
    bool ask(const Question &question) override;
    void show(const tr::Tr &message) override;
    tr::Tr lastShown() const override { return m_shown; }

    //! Refuses what is wrong with \a command, or else executes it.
    Outcome begin(const Command &command);
    Outcome execute(const command::Open &open);
    Outcome execute(const command::Add &add);
    Outcome execute(const command::ChangeCount &change);
    Outcome execute(const command::Storno &storno);
    Outcome execute(const command::Split &split);
    Outcome execute(const command::Unite &unite);
    Outcome execute(const command::AttachOrder &order);
    Outcome execute(const command::AddSoftCheck &softCheck);
    Outcome execute(const command::Subtotal &);
    Outcome execute(const command::Pay &pay);
    Outcome execute(const command::Cancel &);

    bool hasUnfinishedReceipt() const;
    EContext::Result run(const control::Action &action);
    //! Runs an action that is a whole command, and keeps it.
    Outcome perform(const control::Action &action);
    //! Stores what a command did to the receipt; \a result is how its last action ended.
    Outcome keep(EContext::Result result);
    //! How a command ended whose last action ended with \a result.
    Outcome outcomeOf(EContext::Result result) const;
    Outcome checkIdle(const Command &command) const;
    // Of a command to a receipt that is not finished.
    Outcome checkOf(const command::Open &) const { return Outcome::done(); }
    Outcome checkOf(const command::Add &add) const;
    Outcome checkOf(const command::ChangeCount &change) const;
    Outcome checkOf(const command::Storno &storno) const;
    Outcome checkOf(const command::Split &split) const;
    Outcome checkOf(const command::Unite &unite) const;
    Outcome checkOf(const command::AttachOrder &order) const;
    Outcome checkOf(const command::AddSoftCheck &softCheck) const;
    Outcome checkOf(const command::Subtotal &) const;
    Outcome checkOf(const command::Pay &) const;
    Outcome checkOf(const command::Cancel &) const { return Outcome::done(); }
    Outcome checkNotEmpty() const;
    Outcome checkPosition(int posnum) const;
    //! Ends a command that the register itself refuses: the cashier is shown why.
    Outcome refuse(const tr::Tr &message);
    //! The same for a payment of which so much is missing.
    Outcome refuseShort(Kopecks missing);
    Result<> store();
    Result<> reload(qint64 id);
    void takeUp(const QSharedPointer<Receipt> &receipt);
    void watch(Receipt &receipt);

    const Catalogue &m_catalogue;
    Storage &m_storage;
    const LoadedPlugin *m_plugin;
    Front *m_front;
    Notes &m_notes;
    ReceiptNotes m_receiptNotes;
    HostServices m_services;
    ActionRunner m_runner;
    QSharedPointer<Receipt> m_receipt;
    Journal m_journal;  //!< of the command that is under way
    tr::Tr m_shown;     //!< the last message of that command
    Message m_declined; //!< that a question of it was answered no, the last such; empty without one
    Observers<> m_receiptObservers;
    bool m_isReceiptTouched = false; //!< and nobody was told yet
    bool m_isPluginReady = false;
    bool m_isBusy = false;
};

} // namespace till

#endif // TILL_REGISTER_REGISTER_H
