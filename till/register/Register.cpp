#include "till/register/Register.h"

#include "host/BasicPlugin.h"
#include "host/DocumentWatcher.h"
#include "till/language/TillMessages.h"

namespace till {

//! While it lives something is under way. When all is done it is told whether it was with the
//! receipt.
class Register::UnderWay
{
public:
    explicit UnderWay(Register &cashRegister)
        : m_register(cashRegister)
        , m_isOutermost(!std::exchange(cashRegister.m_isBusy, true))
    {
    }
    ~UnderWay()
    {
        if (!m_isOutermost)
            return;
        if (std::exchange(m_register.m_isReceiptTouched, false))
            m_register.m_receiptObservers.tell();
        m_register.m_isBusy = false;
    }
    Q_DISABLE_COPY_MOVE(UnderWay)

private:
    Register &m_register;
    const bool m_isOutermost;
};

Register::Register(const Parts &parts)
    : m_catalogue(parts.catalogue)
    , m_storage(parts.storage)
    , m_plugin(parts.plugin)
    , m_front(parts.front)
    , m_notes(parts.notes)
    , m_receiptNotes(parts.notes)
    , m_services(*this, parts.notes, parts.settings)
    , m_runner(*this, m_services, parts.notes, parts.plugin ? parts.plugin->plugin : nullptr)
    , m_journal(parts.notes)
{
    m_runner.setArticles([this](const QString &code) { return m_catalogue.find(code); });
}

Register::~Register()
{
    m_isBusy = true; // the plugin may ask something when it ends
    if (m_isPluginReady)
        m_plugin->plugin->deinit();
    if (m_receipt)
        m_receiptNotes.tellTakenUp(nullptr);
}

Result<> Register::start()
{
    if (!m_services.areInPlace())
        return Fault{{}, QStringLiteral("another register is on in this process")};
    const UnderWay underWay(*this);
    if (m_plugin) {
        if (const auto initialised = m_plugin->initialise(); !initialised)
            return initialised.error().fault();
        m_isPluginReady = true;
    }
    auto read = m_storage.unfinishedReceipt();
    if (!read)
        return read.error();
    if (std::optional<ReceiptRecord> &record = *read) {
        record->state = ReceiptState::Open; // what asks before subtotal is to ask again
        takeUp(QSharedPointer<Receipt>::create(*record));
    }
    return {};
}

Outcome Register::carryOut(const Command &command)
{
    if (m_isBusy)
        return Outcome::busy();
    const UnderWay underWay(*this);
    m_journal.begin();
    m_shown = {};
    m_declined = {};
    return tellCommand(m_notes, toText(command), [&] { return begin(command); });
}

Outcome Register::begin(const Command &command)
{
    const Outcome checked = checkIdle(command);
    if (checked.kind == Outcome::RefusedByRegister)
        return refuse(checked.reason.pattern);
    if (!checked)
        return checked;
    return std::visit([this](const auto &kind) { return execute(kind); }, command);
}

TaraState Register::taraState() const
{
    if (!m_plugin || !m_receipt)
        return {};
    return TaraState::read(m_receipt->pluginData(), m_plugin->object->objectName());
}

TaraControl Register::taraControl() const
{
    if (!m_plugin)
        return TaraControl::Absent;
    return m_receipt ? controlOf(*m_receipt) : TaraControl::Suspended;
}

int Register::runQueued(const control::Action &action)
{
    const UnderWay underWay(*this); // a plugin may ask at any time
    m_isReceiptTouched = true;
    return m_runner.run(action, ActionRunner::Origin::Program);
}

bool Register::ask(const Question &question)
{
    m_notes.add("question", {{"key", question.text.key()}, {"text", question.text.text()}});
    const bool answer = m_front && m_front->ask(question);
    if (!answer)
        m_declined = {messages::tillDeclined(), {}, question.text};
    const tr::Tr &taken = answer ? question.confirm : question.cancel;
    m_notes.add("answer", {{"key", taken.key()}, {"confirmed", answer}});
    return answer;
}

void Register::show(const tr::Tr &message)
{
    m_shown = message;
    m_notes.add("message", {{"key", message.key()}, {"text", message.text()}});
    if (m_front)
        m_front->show(message);
}

bool Register::hasUnfinishedReceipt() const
{
    return m_receipt && isUnfinished(m_receipt->state());
}

Outcome Register::refuse(const tr::Tr &message)
{
    show(message);
    const Outcome kept = keep(EContext::Cancel);
    return kept.kind == Outcome::Failed ? kept : Outcome::refused(message);
}

EContext::Result Register::run(const control::Action &action)
{
    m_isReceiptTouched = true;
    return m_runner.run(action, ActionRunner::Origin::Cashier);
}

Outcome Register::perform(const control::Action &action)
{
    return keep(run(action));
}

Outcome Register::keep(EContext::Result result)
{
    const qint64 storedId = m_receipt->id();
    if (const Result<> stored = store(); !stored) {
        QStringList details{stored.error().text()};
        if (const Result<> reloaded = reload(storedId); !reloaded)
            details.append(reloaded.error().text());
        return {Outcome::Failed, {messages::tillNotStored(), {}}, details.join("; ")};
    }
    m_receiptNotes.tellReceipt(*m_receipt);
    return outcomeOf(result);
}

Outcome Register::outcomeOf(EContext::Result result) const
{
    if (result == EContext::Continue)
        return Outcome::done();
    if (result == EContext::Cancel) // without a reason where a plugin asked nobody
        return {Outcome::Declined, m_declined, {}};
    if (m_runner.wasStoppedByPlugin())
        return {Outcome::RefusedByPlugin, {m_shown, {}}, {}};
    return {Outcome::RefusedByRegister, m_runner.reason(), {}};
}

Result<> Register::store()
{
    m_receipt->noteUnnoted(); // plugins tie positions together without an event
    ReceiptUpdate update = m_receipt->update();
    Result<> saved = m_storage.save(update, m_journal.take());
    if (saved)
        m_receipt->setStored(update.id);
    return saved;
}

Result<> Register::reload(qint64 id)
{
    if (id == 0) { // the receipt itself could not be stored
        takeUp(nullptr);
        return {};
    }
    const auto read = m_storage.receipt(id);
    takeUp(read && *read ? QSharedPointer<Receipt>::create(**read) : nullptr);
    if (!read)
        return read.error();
    return {};
}

void Register::takeUp(const QSharedPointer<Receipt> &receipt)
{
    m_isReceiptTouched = true;
    m_receipt = receipt;
    m_runner.setReceipt(receipt);
    m_receiptNotes.tellTakenUp(receipt.get());
    if (receipt)
        watch(*receipt);
    if (!m_plugin)
        return;
    m_plugin->watcher->setDocument(receipt);
    // A soft-check leaves no trace that the plugin would see in the document, so it is told again.
    if (receipt && !receipt->softChecks().isEmpty())
        m_runner.runTriggersAfter(control::Action(
            control::AddSoftCheck, {{argument::softCheck, receipt->softChecks().constLast()}}));
}

void Register::watch(Receipt &receipt)
{
    receipt.setWatcher({[this](bool on) {
                            m_notes.add("switch", {{"on", on}});
                        },
                        [this](const Position &position) { m_receiptNotes.tell(position); },
                        [this](const ValueChange &change) { m_receiptNotes.tell(change); }});
}

} // namespace till
