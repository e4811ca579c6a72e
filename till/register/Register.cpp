#include "till/register/Register.h"

#include "host/ActionArguments.h"
#include "host/BasicPlugin.h"
#include "host/DocumentWatcher.h"
#include "host/Quantity.h"
#include "till/language/TillMessages.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QSet>

#include <utility>

namespace till {

namespace {

control::Action onPosition(control::EActionType type, int posnum)
{
    const control::Action action(type, {});
    control::args::Core(action).setPositionNumber(posnum);
    return action;
}

template <typename Value>
QVariantList toVariants(const QList<Value> &values)
{
    QVariantList list;
    for (const Value &value : values)
        list.append(value);
    return list;
}

QString number(int posnum)
{
    return QString::number(posnum);
}

} // namespace

Register::Register(const Parts &parts)
    : m_catalogue(parts.catalogue)
    , m_storage(parts.storage)
    , m_plugin(parts.plugin)
    , m_notes(parts.notes)
    , m_services(*this, parts.notes, parts.settings)
    , m_runner(*this, m_services, parts.notes, parts.plugin ? parts.plugin->plugin : nullptr)
{
    m_notes.listen(this, [this](const QJsonObject &note) { collectJournal(note); });
    m_runner.setArticles([this](const QString &code) { return m_catalogue.find(code); });
    if (m_plugin)
        m_plugin->plugin->init();
}

Register::~Register()
{
    if (m_plugin)
        m_plugin->plugin->deinit();
    m_notes.forget(this);
}

QString Register::resume()
{
    QString error;
    const std::optional<ReceiptRecord> record = m_storage.unfinishedReceipt(&error);
    if (error.isEmpty() && record)
        takeUp(QSharedPointer<Receipt>::create(*record));
    return error;
}

Outcome Register::open(int type)
{
    if (isInHand())
        return Outcome::mistake("a receipt is open already: pay or cancel it first");
    takeUp(QSharedPointer<Receipt>::create(type));
    return perform(control::Action(control::OpenReceipt, {{"receiptType", type}}));
}

Outcome Register::add(const QString &code, double count)
{
    if (!isInHand())
        return Outcome::mistake("no receipt is open");
    const auto article = m_catalogue.find(code);
    if (!article)
        return Outcome::mistake("no article \"" + code + "\" in the catalogue");
    if (count <= 0)
        return Outcome::mistake("the quantity must be above 0");
    if (const QString fault = m_receipt->limitFault(article->data, count); !fault.isEmpty())
        return Outcome::mistake(fault);
    return perform(control::Action(control::AddPosition,
                                   {{argument::article, code}, {argument::count, count}}));
}

Outcome Register::changeCount(int posnum, double count)
{
    if (const Outcome check = checkPosition(posnum); !check)
        return check;
    if (count < 0)
        return Outcome::mistake("the quantity must not be below 0");
    const auto line = m_receipt->line(posnum);
    const QString fault = m_receipt->limitFault(line->article(), count, line.get());
    if (!fault.isEmpty())
        return Outcome::mistake(fault);
    const double base = count * line->article().pack;
    m_services.modifiers().set(modifiers::Quantity,
                               QVariant::fromValue(Quantity(base, quantModeNone)));
    return perform(onPosition(control::ApplyModifiers, posnum));
}

Outcome Register::storno(int posnum)
{
    if (const Outcome check = checkPosition(posnum); !check)
        return check;
    return perform(onPosition(control::StornoPosition, posnum));
}

Outcome Register::split(int posnum, const QList<double> &parts)
{
    if (const Outcome check = checkPosition(posnum); !check)
        return check;
    double left = m_receipt->line(posnum)->getCquant();
    for (const double part : parts) {
        if (part <= 0)
            return Outcome::mistake("each part must be above 0");
        left -= part;
    }
    if (toText(left).startsWith(QLatin1Char('-')))
        return Outcome::mistake("position " + number(posnum) + " holds less than the parts");
    const control::Action action = onPosition(control::SplitPositions, posnum);
    action.setArgument(argument::parts, toVariants(parts));
    return perform(action);
}

Outcome Register::unite(const QList<int> &posnums)
{
    QSet<int> seen;
    double count = 0.0;
    for (const int posnum : posnums) {
        if (const Outcome check = checkPosition(posnum); !check)
            return check;
        if (seen.contains(posnum))
            return Outcome::mistake("position " + number(posnum) + " is named twice");
        seen.insert(posnum);
        if (!(m_receipt->line(posnum)->article() == m_receipt->line(posnums[0])->article()))
            return Outcome::mistake("positions " + number(posnums[0]) + " and " + number(posnum)
                                    + " are of different articles");
        count += m_receipt->line(posnum)->getCquant();
    }
    if (const QString fault = countFault(count); !fault.isEmpty())
        return Outcome::mistake(fault);
    return perform(
        control::Action(control::UnitePositions, {{argument::positions, toVariants(posnums)}}));
}

Outcome Register::attachOrder(const QString &orderNumber)
{
    if (!isInHand())
        return Outcome::mistake("no receipt is open");
    if (m_receipt->getOrder())
        return Outcome::mistake("the receipt has order " + m_receipt->getOrder()->number
                                + " already");
    return perform(control::Action(control::AddSoftCheck, {{argument::order, orderNumber}}));
}

Outcome Register::addSoftCheck(const QString &softCheckNumber)
{
    if (!isInHand())
        return Outcome::mistake("no receipt is open");
    if (m_receipt->softChecks().contains(softCheckNumber))
        return Outcome::mistake("the receipt has soft-check " + softCheckNumber + " already");
    return perform(
        control::Action(control::AddSoftCheck, {{argument::softCheck, softCheckNumber}}));
}

Outcome Register::subtotal()
{
    if (!isInHand())
        return Outcome::mistake("no receipt is open");
    if (m_receipt->getPositionList().isEmpty())
        return refuse(messages::tillReceiptEmpty());
    return perform(control::Action(control::Subtotal, {}));
}

Outcome Register::pay(std::optional<Kopecks> tendered)
{
    if (!isInHand())
        return Outcome::mistake("no receipt is open");
    if (m_receipt->getPositionList().isEmpty())
        return refuse(messages::tillReceiptEmpty());
    EContext::Result result = EContext::Continue;
    if (m_receipt->state() != ReceiptState::Subtotal)
        result = run(control::Action(control::Payment, {}));
    const Kopecks due = m_receipt->total();
    const bool isEnough = !tendered || *tendered >= due;
    if (result == EContext::Continue && isEnough)
        result =
            run(control::Action(control::CloseReceipt, {{"tendered", tendered.value_or(due)}}));
    // Both actions are one command: they are stored together, so that no end comes between them.
    const Outcome outcome = keep(result);
    return outcome && !isEnough ? refuse(messages::tillNotEnoughMoney()) : outcome;
}

Outcome Register::cancel()
{
    if (!isInHand())
        return Outcome::mistake("no receipt is open");
    if (!ask(messages::tillCancelReceipt(), messages::tillYes(), messages::tillNo()))
        return Outcome::refused({});
    return perform(control::Action(control::CancelReceipt, {}));
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
    const bool active = m_receipt && m_receipt->getType() == Document::Sale
                        && !m_receipt->getOrder() && m_receipt->softChecks().isEmpty();
    return active ? TaraControl::Active : TaraControl::Suspended;
}

int Register::runQueued(const control::Action &action)
{
    return m_runner.run(action, ActionRunner::Origin::Program);
}

bool Register::ask(const tr::Tr &question, const tr::Tr &confirm, const tr::Tr &cancel)
{
    m_notes.add("question", {{"key", question.key()}, {"text", question.text()}});
    const bool answer = m_asker && m_asker(question, confirm, cancel);
    m_notes.add("answer", {{"key", answer ? confirm.key() : cancel.key()}, {"confirmed", answer}});
    return answer;
}

void Register::show(const tr::Tr &message)
{
    m_notes.add("message", {{"key", message.key()}, {"text", message.text()}});
    if (m_shower)
        m_shower(message);
}

bool Register::isInHand() const
{
    return m_receipt && m_receipt->state() != ReceiptState::Closed
           && m_receipt->state() != ReceiptState::Cancelled;
}

Outcome Register::checkPosition(int posnum) const
{
    if (!isInHand())
        return Outcome::mistake("no receipt is open");
    if (!m_receipt->line(posnum))
        return Outcome::mistake("the receipt has no position " + number(posnum));
    if (!m_receipt->getPositionByPosnum(posnum))
        return Outcome::mistake("position " + number(posnum) + " is stornoed");
    return Outcome::done();
}

Outcome Register::refuse(const tr::Tr &message)
{
    show(message);
    return Outcome::refused(message.key());
}

EContext::Result Register::run(const control::Action &action)
{
    return m_runner.run(action, ActionRunner::Origin::Cashier);
}

Outcome Register::perform(const control::Action &action)
{
    return keep(run(action));
}

Outcome Register::keep(EContext::Result result)
{
    const qint64 storedId = m_receipt->id();
    if (const QString error = store(); !error.isEmpty()) {
        const QString reloadError = reload(storedId);
        return Outcome::failed(reloadError.isEmpty() ? error : error + "; " + reloadError);
    }
    noteReceipt();
    return result == EContext::Continue ? Outcome::done() : Outcome::refused({});
}

QString Register::store()
{
    ReceiptRecord record = m_receipt->record();
    const QString error = m_storage.save(record, std::exchange(m_journal, {}));
    if (error.isEmpty())
        m_receipt->setId(record.id);
    return error;
}

QString Register::reload(qint64 id)
{
    if (id == 0) { // the receipt itself could not be stored
        takeUp(nullptr);
        return {};
    }
    QString error;
    const std::optional<ReceiptRecord> record = m_storage.receipt(id, &error);
    takeUp(record ? QSharedPointer<Receipt>::create(*record) : nullptr);
    return error;
}

void Register::takeUp(const QSharedPointer<Receipt> &receipt)
{
    m_receipt = receipt;
    m_runner.setReceipt(receipt);
    noteTakenUp();
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
                        [this](const QString &plugin, const QString &key, const QVariant &value) {
                            noteData(plugin, key, value);
                        }});
}

void Register::collectJournal(const QJsonObject &note)
{
    static const QStringList kept{"action", "trigger", "result", "question", "answer", "message"};
    const QString kind = note.value("kind").toString();
    if (kept.contains(kind))
        m_journal.append(
            {m_notes.depth(), kind, QJsonDocument(note).toJson(QJsonDocument::Compact)});
}

//! Whoever follows the notes forgets the receipt before and begins with what stands here.
void Register::noteTakenUp()
{
    m_notes.add("takeup", {{"id", m_receipt ? m_receipt->id() : 0}});
    if (!m_receipt)
        return;
    const auto data = m_receipt->pluginData();
    for (auto plugin = data.cbegin(); plugin != data.cend(); ++plugin) {
        for (auto entry = plugin->cbegin(); entry != plugin->cend(); ++entry)
            noteData(plugin.key(), entry.key(), entry.value());
    }
    noteReceipt();
}

void Register::noteData(const QString &plugin, const QString &key, const QVariant &value)
{
    if (m_notes.wantsStates())
        m_notes.add("data",
                    {{"plugin", plugin}, {"key", key}, {"value", QJsonValue::fromVariant(value)}});
}

//! The positions that changed unnoted, then the receipt as a whole.
void Register::noteReceipt()
{
    if (!m_notes.wantsStates())
        return;
    m_runner.noteChangedPositions();
    const QSharedPointer<Order> order = m_receipt->getOrder();
    m_notes.add("receipt", {{"id", m_receipt->id()},
                            {"type", m_receipt->getType()},
                            {"state", static_cast<int>(m_receipt->state())},
                            {"order", order ? order->number : QString()},
                            {"softChecks", QJsonArray::fromStringList(m_receipt->softChecks())},
                            {"positions", m_receipt->getPositionList().size()},
                            {"total", m_receipt->total()},
                            {"recomputations", m_receipt->recomputations()}});
}

} // namespace till
