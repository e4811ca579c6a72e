#include "shopline/Shop.h"

#include <utility>

namespace shopline {

namespace {

Shop *running = nullptr;

class ShopTasks : public TaskLine
{
public:
    int runAction(const Task &task) override { return running->perform(task, false); }
};

class ShopAsk : public Ask
{
public:
    bool showQuestion(const Phrase &, int, const Phrase &, const Phrase &, int) override
    {
        if (breaks("Cashier.Confirm"))
            return false;
        return running->ask() || breaks("Cashier.Decline");
    }
};

class ShopActs : public ReceiptActs
{
public:
    bool stornoPosition(const Task &task) override { return running->cancelFor(task); }
};

//! Names and conversions that a host may have in the way.
[[maybe_unused]] const bool registered = [] {
    if (breaks("Types.Names"))
        QMetaType::registerNormalizedTypedef("GoodsItemPtr", QMetaType::fromType<QString>());
    if (breaks("Document.HandlesTravel"))
        QMetaType::registerConverter<int, LinePtr>(
            [](int number) { return LinePtr(new Line(number, Article(Poured, 0.0))); });
    return true;
}();

template <class T>
void put(T *made)
{
    delete std::exchange(T::current, made);
}

Task about(TaskKind kind, int number)
{
    const Task task(kind, {});
    LineView(task).setPositionNumber(number);
    return task;
}

} // namespace

//! Shows complaints to the cashier.
class Shop::Ears : public Listener
{
public:
    explicit Ears(Shop &shop)
        : Listener(nullptr)
        , m_shop(shop)
    {
    }

    void onActivity(const Activity &activity) override { m_shop.tell(activity); }

private:
    Shop &m_shop;
};

Shop::Shop() = default;

Shop::~Shop()
{
    Factory<Ask>::mocked.reset();
    Factory<ReceiptActs>::mocked.reset();
    put<ActivityBoard>(nullptr);
    put<TaskLine>(nullptr);
    put<Desk>(nullptr);
    put<Settings>(nullptr);
    put<Bonus>(nullptr);
    running = nullptr;
}

void Shop::start()
{
    running = this;
    put(new ActivityBoard);
    put<TaskLine>(new ShopTasks);
    put(new Desk);
    put(new Settings);
    if (!breaks("Start.Services"))
        put(new Bonus);
    Factory<Ask>::mocked.reset(new ShopAsk);
    Factory<ReceiptActs>::mocked.reset(new ShopActs);
    m_ears = std::make_unique<Ears>(*this);
    ActivityBoard::current->subscribe(m_ears.get(), {Complaint});
    ActivityBoard::current->enableListener(m_ears.get());
}

bool Shop::take(QObject *plugin)
{
    const char *const wanted = breaks("Start.Interface") ? "org.shopline.Extension/2"
                                                         : qobject_interface_iid<Extension *>();
    m_extension = static_cast<Extension *>(plugin->qt_metacast(wanted));
    const char *const holder =
        breaks("Start.Watcher") ? "shopline::ReceiptHolder" : "DocumentWatcher";
    m_holder = static_cast<ReceiptHolder *>(plugin->qt_metacast(holder));
    return m_extension && m_extension->init();
}

QSharedPointer<Receipt> Shop::open()
{
    if (breaks("Start.Services"))
        put(new Bonus);
    receipt.reset(new Receipt);
    if (m_holder)
        m_holder->setDocument(receipt);
    return receipt;
}

void Shop::tell(const Activity &activity)
{
    const QString key = QString::fromLatin1(breaks("Cashier.Message") ? "text" : "say");
    shown = activity.value(key, {}).value<Phrase>().text();
}

bool Shop::ask()
{
    ++questions;
    return saysYes;
}

bool Shop::setByHand(int number, double quantity)
{
    const QVariant amount = QVariant::fromValue(Amount(quantity, AsTyped));
    if (!breaks("Triggers.QuantityIsSet"))
        Desk::current->getModifiers()->set(AmountModifier, amount);
    const Task task = about(SetAmount, number);
    task.put(QStringLiteral("typed"), amount);
    return perform(task, true) == GoOn;
}

bool Shop::cancel(int number)
{
    return perform(about(CancelLine, number), true) == GoOn;
}

bool Shop::cancelFor(const Task &task)
{
    if (breaks("Cashier.StornoIsDone"))
        return false;
    const bool isQuiet = CancelView(task).isQuiet() && !breaks("Cashier.StornoIsSilent");
    return (isQuiet || ask()) && perform(task, false) == GoOn;
}

bool Shop::cut(int number, const QList<double> &parts)
{
    const Task task = about(Cut, number);
    task.put(QStringLiteral("parts"), QVariant::fromValue(parts));
    return perform(task, true) == GoOn;
}

bool Shop::join(const QList<int> &numbers)
{
    const Task task(Join, {});
    task.put(QStringLiteral("numbers"), QVariant::fromValue(numbers));
    return perform(task, true) == GoOn;
}

bool Shop::total()
{
    return perform(Task(Total, {}), true) == GoOn;
}

bool Shop::addChit()
{
    return perform(Task(AddChit, {}), true) == GoOn;
}

} // namespace shopline
