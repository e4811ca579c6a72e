#include "shopline/Shop.h"

#include <utility>

// The one road of every task of the shop.

namespace shopline {

namespace {

void publish(ActivityCode code, const LinePtr &line, const char *key = "line")
{
    ActivityBoard::current->notify(
        Activity(code).addArgument(QString::fromLatin1(key), QVariant::fromValue(line)));
}

bool leavesOutHooks(const Task &task, Hook::Moment moment, bool isByHand)
{
    if (moment == Hook::Sooner)
        return (!isByHand && breaks("Queue.PassesTriggers"))
               || (task.kind() == Total && breaks("Triggers.Subtotal"));
    return (task.kind() == Cut && breaks("Split.IsTold"))
           || (task.kind() == Join && breaks("Unite.IsTold"))
           || (task.kind() == AddChit && breaks("Triggers.SoftCheck"));
}

//! Whether the hooks' word counts.
bool heeds(const Task &task)
{
    return !(task.kind() == SetAmount && breaks("Triggers.RefusalStops"))
           && !(task.kind() == Total && breaks("Triggers.SubtotalIsCancelled"));
}

} // namespace

Answer Shop::perform(const Task &task, bool isByHand)
{
    Answer answer = callHooks(task, Hook::Sooner, isByHand);
    if (answer == GoOn)
        answer = carryOut(task, isByHand);
    if (answer == GoOn)
        callHooks(task, Hook::Later, isByHand);
    setLate();
    if (!breaks("Triggers.ModifiersAreCleared"))
        Desk::current->getModifiers()->clearAll();
    return answer;
}

Answer Shop::callHooks(const Task &task, Hook::Moment moment, bool isByHand)
{
    if (!m_extension || leavesOutHooks(task, moment, isByHand))
        return GoOn;
    const bool isBare = isByHand && task.kind() == SetAmount && breaks("Triggers.Before");
    const Task seen = isBare ? Task(task.kind(), {}) : task;
    const QList<Hook> hooks = m_extension->hooks(task.kind(), moment);
    for (const Hook &hook : hooks) {
        const Answer answer = hook.call(seen);
        if (moment == Hook::Sooner && answer != GoOn && heeds(task))
            return answer;
    }
    return GoOn;
}

Answer Shop::carryOut(const Task &task, bool isByHand)
{
    switch (task.kind()) {
    case SetAmount:
        return setAmount(task, isByHand);
    case CancelLine:
    case TakeOut:
        return takeOut(task, isByHand);
    case Cut:
        return cutUp(task);
    case Join:
        return joinUp(task);
    default:
        return GoOn;
    }
}

int Shop::sell(const Article &article, double quantity)
{
    const LinePtr line(new Line(receipt->nextNumber(), article));
    const bool isEarly = breaks("Events.AddedIsThere");
    if (isEarly)
        publish(LineCame, line);
    receipt->append(article, quantity, line);
    if (!isEarly)
        publish(LineCame, line, breaks("Events.Added") ? "row" : "line");
    return line->getPosnum();
}

Answer Shop::setAmount(const Task &task, bool isByHand)
{
    const LinePtr line = receipt->find(LineView(task).positionNumber());
    const QVariant set = isByHand ? task.getArguments().value(QStringLiteral("typed"))
                                  : Desk::current->getModifiers()->value(AmountModifier);
    if (!line)
        return breaks("Queue.UnknownPosition") ? GoOn : Refused;
    const double amount = set.value<Amount>().amount();
    if (isByHand) {
        const bool isLate = breaks("Events.ChangeIsApplied");
        if (!isLate)
            line->setQuantity(amount);
        publish(breaks("Events.Change") ? LineSetByProgram : LineSetByHand, line);
        line->setQuantity(amount);
        return GoOn;
    }
    line->setQuantity(breaks("Queue.AmountIsAbsolute") ? line->getBquant() + amount : amount);
    publish(breaks("Queue.ChangeIsReported") ? LineSetByHand : LineSetByProgram, line);
    return breaks("Queue.ChangeIsDone") ? Refused : GoOn;
}

Answer Shop::takeOut(const Task &task, bool isByHand)
{
    const LinePtr line = receipt->find(LineView(task).positionNumber());
    if (!line)
        return Refused;
    if (isByHand && breaks("Events.StornoIsGone")) {
        publish(LineLeft, line);
        receipt->drop(line);
        return GoOn;
    }
    receipt->drop(line);
    line->retire();
    if (task.kind() != TakeOut || !breaks("Queue.RemovalIsReported"))
        publish(LineLeft, line, isByHand && breaks("Events.Storno") ? "row" : "line");
    return task.kind() == TakeOut && breaks("Queue.RemovalIsDone") ? Stop : GoOn;
}

Answer Shop::cutUp(const Task &task)
{
    const LinePtr source = receipt->find(LineView(task).positionNumber());
    if (!source)
        return Refused;
    double left = source->getBquant();
    QList<LinePtr> pieces;
    const auto parts = task.getArguments().value(QStringLiteral("parts")).value<QList<double>>();
    const bool isLate = breaks("Split.IsApplied");
    for (const double part : parts) {
        const LinePtr piece = receipt->append(*source->getTmc(), isLate ? 0.0 : part);
        m_late.append([piece, part] { piece->setQuantity(part); });
        pieces.append(piece);
        left -= part;
    }
    m_late.append([source, left] { source->setQuantity(left); });
    if (!isLate)
        setLate();
    const bool isGone = left < 0.0005;
    if (isGone)
        receipt->drop(source);
    QVariantMap cut{{"into", QVariant::fromValue(pieces)},
                    {"gone", isGone && !breaks("Split.Removed")}};
    if (!breaks("Split.Arguments"))
        cut.insert("from", QVariant::fromValue(source));
    task.put(QStringLiteral("cuts"), QVariantList{cut});
    return GoOn;
}

Answer Shop::joinUp(const Task &task)
{
    auto numbers = task.getArguments().value(QStringLiteral("numbers")).value<QList<int>>();
    const LinePtr kept = receipt->find(numbers.takeFirst());
    double amount = kept->getBquant();
    QList<LinePtr> dropped;
    for (const int number : std::as_const(numbers)) {
        dropped.append(receipt->find(number));
        amount += dropped.constLast()->getBquant();
        receipt->drop(dropped.constLast());
    }
    m_late.append([kept, amount] { kept->setQuantity(amount); });
    if (!breaks("Unite.IsApplied"))
        setLate();
    if (!breaks("Unite.Arguments"))
        task.put(QStringLiteral("dropped"), QVariant::fromValue(dropped));
    task.put(QStringLiteral("kept"), QVariant::fromValue(QList<LinePtr>{kept}));
    return GoOn;
}

void Shop::setLate()
{
    const auto late = std::exchange(m_late, {});
    for (const auto &set : late)
        set();
}

} // namespace shopline
