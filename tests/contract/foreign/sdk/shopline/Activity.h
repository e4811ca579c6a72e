#ifndef SHOPLINE_ACTIVITY_H
#define SHOPLINE_ACTIVITY_H

#include "shopline/Api.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QSet>
#include <QtCore/QVariant>

namespace shopline {

enum ActivityCode : int {
    Nothing = 0,
    LineCame = 19,
    LineLeft = 21,
    LineSetByHand = 26,
    Complaint = 29,
    LineSetByProgram = 252,
};

//! Something that happened. Values under "line" (LinePtr), "say" (Phrase), "toBuyer" (bool).
class SHOPLINE_API Activity
{
public:
    Activity() = default;
    explicit Activity(ActivityCode code);
    Activity(const Activity &other);
    Activity &operator=(const Activity &other);

    ActivityCode getCode() const;
    QVariant value(const QString &key, const QVariant &otherwise) const;
    Activity &addArgument(const QString &key, const QVariant &value);
    bool operator==(const Activity &other) const;

private:
    ActivityCode m_code = Nothing;
    QVariantMap m_values;
};

//! Hears of what happens.
class SHOPLINE_API Listener : public QObject
{
    Q_OBJECT

public:
    explicit Listener(QObject *parent);
    virtual void onActivity(const Activity &activity) = 0;
};

//! Tells listeners what happens.
class SHOPLINE_API ActivityBoard
{
public:
    //! The board of this process; null until somebody puts one here.
    static ActivityBoard *current;

    virtual void subscribe(Listener *listener, const QSet<int> &codes);
    virtual void unused1();
#if !defined(SHOPLINE_BREAKS_Table_Notifier)
    virtual void unused2();
#endif
    virtual void disableListener(Listener *listener);
    virtual void enableListener(Listener *listener);
#if defined(SHOPLINE_BREAKS_Form_Notifier)
    virtual void notify(Activity &activity);
#else
    virtual void notify(const Activity &activity);
#endif
    virtual ~ActivityBoard();

private:
    struct Seat
    {
        QPointer<Listener> listener;
        QSet<int> codes;
        bool isEnabled = true;
    };

    Seat *find(const Listener *listener);
    void deliver(const Activity &activity);
    bool hears(const Listener *listener, const Activity &activity);

    QList<Seat> m_seats;
    QList<Activity> m_later;
    int m_depth = 0;
};

} // namespace shopline

#endif // SHOPLINE_ACTIVITY_H
