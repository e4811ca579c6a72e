#ifndef TILL_REGISTER_REGISTER_H
#define TILL_REGISTER_REGISTER_H

#include "till/actions/ActionRunner.h"
#include "till/actions/HostServices.h"
#include "till/goods/Catalogue.h"
#include "till/plugins/PluginLoader.h"
#include "till/receipt/Receipt.h"
#include "till/receipt/TaraState.h"
#include "till/register/Journal.h"
#include "till/register/Outcome.h"
#include "till/storage/Storage.h"

namespace till {

/*!
 * The register: what a cashier does, command by command. At most one receipt is in hand.
 *
 * A command is done when it is durable. One that cannot be stored leaves the receipt as the last
 * stored command left it.
 */
class Register final : private HostProgram
{
public:
    //! What a register is made of. All must outlive it; `plugin` may be null.
    struct Parts
    {
        const Catalogue &catalogue;
        Storage &storage;
        const LoadedPlugin *plugin;
        Config &settings;
        Notes &notes;
    };

    //! Answers questions in the cashier's place. True takes the confirming choice.
    using Asker =
        std::function<bool(const tr::Tr &question, const tr::Tr &confirm, const tr::Tr &cancel)>;
    //! Shows a message to the cashier.
    using Shower = std::function<void(const tr::Tr &message)>;

    //! Puts the host's services in place.
    explicit Register(const Parts &parts);
    ~Register();
    Q_DISABLE_COPY_MOVE(Register)

    void setAsker(Asker asker) { m_asker = std::move(asker); }
    void setShower(Shower shower) { m_shower = std::move(shower); }

    /*!
     * Initialises the plugin and takes up the receipt that was in hand when the register ended, if
     * any. To be called once, before all else. Empty text or an error, with its place.
     */
    QString start();

    // Commands. Counts are pieces, as the cashier counts; numbers are position numbers.

    Outcome open(int type);
    Outcome add(const QString &code, double count);
    Outcome changeCount(int posnum, double count);
    Outcome storno(int posnum);
    //! Takes \a parts off as new positions; what is left stays in the old one.
    Outcome split(int posnum, const QList<double> &parts);
    //! Puts everything into the first of \a posnums. All must be of one article.
    Outcome unite(const QList<int> &posnums);
    Outcome attachOrder(const QString &number);
    Outcome addSoftCheck(const QString &number);
    Outcome subtotal();
    //! Pays, from subtotal or at once, and closes. Without \a tendered the sum is paid exactly.
    Outcome pay(std::optional<Kopecks> tendered);
    Outcome cancel();

    //! The receipt that was opened last, also when it is closed; null when there was none.
    QSharedPointer<const Receipt> receipt() const { return m_receipt; }
    //! What the plugin noted in the receipt.
    TaraState taraState() const;
    TaraControl taraControl() const;

private:
    int runQueued(const control::Action &action) override;
    bool ask(const tr::Tr &question, const tr::Tr &confirm, const tr::Tr &cancel) override;
    void show(const tr::Tr &message) override;

    bool isInHand() const;
    EContext::Result run(const control::Action &action);
    //! Runs an action that is a whole command, and keeps it.
    Outcome perform(const control::Action &action);
    //! Stores what a command did to the receipt; \a result is how its last action ended.
    Outcome keep(EContext::Result result);
    Outcome checkPosition(int posnum) const;
    //! A command that ends before its first action: the cashier is shown why.
    Outcome refuse(const tr::Tr &message);
    QString store();
    QString reload(qint64 id);
    void takeUp(const QSharedPointer<Receipt> &receipt);
    void watch(Receipt &receipt);

    const Catalogue &m_catalogue;
    Storage &m_storage;
    const LoadedPlugin *m_plugin;
    Notes &m_notes;
    ReceiptNotes m_receiptNotes;
    HostServices m_services;
    ActionRunner m_runner;
    Asker m_asker;
    Shower m_shower;
    QSharedPointer<Receipt> m_receipt;
    Journal m_journal; //!< of the command that is under way
    bool m_isPluginReady = false;
};

} // namespace till

#endif // TILL_REGISTER_REGISTER_H
