#ifndef SHOPLINE_TASK_H
#define SHOPLINE_TASK_H

#include "shopline/Api.h"

#include <QtCore/QMultiMap>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <functional>

namespace shopline {

enum TaskKind : int {
    SetAmount = 5,
    AddChit = 129,
    CancelLine = 132,
    Total = 133,
    PayNow = 144,
    TakeOut = 202,
    Cut = 233,
    Join = 234,
    Sell = 900,
};

enum Place : int { AtReceipt = 6 };
enum Answer : int { Stop = 0, Refused = 1, GoOn = 2 };

using TaskValues = QMultiMap<QString, QVariant>;

/*!
 * Something to be done. Copies share their values: "lineNumber" (int), "quiet" (bool); of a cut
 * "cuts", a list of maps of "from" (LinePtr), "into" (QList<LinePtr>) and "gone" (bool); of a join
 * "dropped" and "kept" (QList<LinePtr>).
 */
class SHOPLINE_API Task
{
public:
    Task(TaskKind kind, const TaskValues &values);
    Task(const Task &other);

    TaskKind kind() const;
#if defined(SHOPLINE_BREAKS_Form_Action)
    TaskValues getArguments();
#else
    TaskValues getArguments() const;
#endif
    void put(const QString &key, const QVariant &value) const;

private:
    friend class TaskView;
    struct Data;
    QSharedPointer<Data> m_data;
};

//! A look at the values of a task. The other looks are steps on the way from it to a cancelled
//! line.
class SHOPLINE_API TaskView
{
public:
    explicit TaskView(const Task &task);

protected:
    QVariant value(const QString &key) const;
    void put(const QString &key, const QVariant &value) const;

private:
    QSharedPointer<Task::Data> m_data;
};

class SHOPLINE_API LineView : public TaskView
{
public:
    using TaskView::TaskView;
    int positionNumber() const;
#if defined(SHOPLINE_BREAKS_Form_Accessors)
    void setPositionNumber(int number);
#else
    void setPositionNumber(int number) const;
#endif
};

class SHOPLINE_API EntryView : public LineView
{
public:
    using LineView::LineView;
};

class SHOPLINE_API WholeLineView : public EntryView
{
public:
    using EntryView::EntryView;
};

#if defined(SHOPLINE_BREAKS_Form_AccessorBases)
using CancelBase = EntryView;
#else
using CancelBase = WholeLineView;
#endif

class SHOPLINE_API CancelView : public CancelBase
{
public:
    using CancelBase::CancelBase;
    void setWithoutDialog(bool quiet);
    bool isQuiet() const;
};

//! A callback at a task.
class SHOPLINE_API Hook
{
public:
    enum Moment : int { Later = 0, Sooner = 1 };
    enum Outcome : int { Plain = 0 };
    enum Rank : int { First = 1, Middle = 3, Last = 5 };
    using Callback = std::function<Answer(const Task &)>;

    Hook(Place place, TaskKind kind, Moment moment, Callback callback, Outcome outcome, Rank rank);

    bool isAt(TaskKind kind, Moment moment) const;
    Rank rank() const;
    Answer call(const Task &task) const;

private:
    Place m_place;
    TaskKind m_kind;
    Moment m_moment;
    Callback m_callback;
    Rank m_rank;
};

} // namespace shopline

#endif // SHOPLINE_TASK_H
