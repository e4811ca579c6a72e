#include "shopline/Extension.h"

#include <algorithm>
#include <utility>

namespace shopline {

struct Task::Data
{
    TaskKind kind;
    TaskValues values;
};

namespace {

const QString lineNumber = QStringLiteral("lineNumber");
const QString quiet = QStringLiteral("quiet");

TaskValues inLowerCase(const TaskValues &values)
{
    TaskValues lower;
    for (auto entry = values.cbegin(); entry != values.cend(); ++entry)
        lower.insert(entry.key().toLower(), entry.value());
    return lower;
}

} // namespace

Task::Task(TaskKind kind, const TaskValues &values)
    : m_data(new Data{kind, breaks("Action.ExactKeys") ? inLowerCase(values) : values})
{
    static const QSharedPointer<Data> one(new Data{AddChit, {}});
    if (kind == AddChit && breaks("Action.Separate"))
        m_data = one;
}

Task::Task(const Task &other)
    : m_data(other.m_data)
{
    if (kind() == AddChit && breaks("Action.SharedByCopies"))
        m_data.reset(new Data(*m_data));
}

TaskKind Task::kind() const
{
    return m_data->kind;
}

TaskValues Task::getArguments() const
{
    return m_data->values;
}

void Task::put(const QString &key, const QVariant &value) const
{
    m_data->values.remove(key);
    m_data->values.insert(key, value);
}

TaskView::TaskView(const Task &task)
    : m_data(task.m_data)
{
    if (task.kind() == AddChit && breaks("Action.Shared"))
        m_data.reset(new Task::Data(*m_data));
}

QVariant TaskView::value(const QString &key) const
{
    return m_data->values.value(key);
}

void TaskView::put(const QString &key, const QVariant &value) const
{
    m_data->values.remove(key);
    m_data->values.insert(key, value);
}

int LineView::positionNumber() const
{
    return value(lineNumber).toInt();
}

void LineView::setPositionNumber(int number) const
{
    put(lineNumber, number);
}

void CancelView::setWithoutDialog(bool isQuietNow)
{
    put(quiet, isQuietNow);
}

bool CancelView::isQuiet() const
{
    return value(quiet).toBool();
}

Hook::Hook(Place place, TaskKind kind, Moment moment, Callback callback, Outcome, Rank rank)
    : m_place(place)
    , m_kind(kind)
    , m_moment(moment)
    , m_callback(std::move(callback))
    , m_rank(rank)
{
}

bool Hook::isAt(TaskKind kind, Moment moment) const
{
    return m_place == AtReceipt && m_kind == kind && m_moment == moment;
}

Hook::Rank Hook::rank() const
{
    return m_rank;
}

Answer Hook::call(const Task &task) const
{
    return m_callback(task);
}

Extension::~Extension() = default;

bool Extension::init()
{
    return true;
}

void Extension::deinit() {}

bool Extension::isFeatureMatched(const QString &) const
{
    return false;
}

void Extension::setFeature(const QString &) {}

void Extension::addHandler(const Worker &) {}

void Extension::addTrigger(const Hook &hook)
{
    m_hooks.append(hook);
}

void Extension::disableTriggers(const QSet<int> &) {}

void Extension::enableTriggers() {}

QList<Hook> Extension::hooks(TaskKind kind, Hook::Moment moment) const
{
    QList<Hook> found;
    std::copy_if(m_hooks.cbegin(), m_hooks.cend(), std::back_inserter(found),
                 [=](const Hook &hook) { return hook.isAt(kind, moment); });
    if (!breaks("Triggers.Priority")) {
        std::stable_sort(found.begin(), found.end(),
                         [](const Hook &a, const Hook &b) { return a.rank() < b.rank(); });
    }
    return found;
}

} // namespace shopline
