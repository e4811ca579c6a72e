#ifndef SHOPLINE_DESK_H
#define SHOPLINE_DESK_H

#include "shopline/Receipt.h"
#include "shopline/Task.h"

#include <QtCore/QMap>
#include <QtCore/QObject>

// What there is one of in the process. Each is null until somebody puts one there.

namespace shopline {

enum AmountKind : int { AsTyped = 0, Recomputed = 7 };
enum ModifierKind : int { AmountModifier = 3 };

class SHOPLINE_API Amount
{
#if !defined(SHOPLINE_BREAKS_Types_Quantity)
    Q_GADGET
#endif

public:
    Amount() = default;
    Amount(double amount, AmountKind kind);
    Amount(const Amount &other);
    Amount &operator=(const Amount &other) = default;

    double amount() const;
#if defined(SHOPLINE_BREAKS_Form_Values)
    int operator==(const Amount &other) const;
#else
    bool operator==(const Amount &other) const;
#endif

private:
    double m_amount = 0.0;
    AmountKind m_kind = AsTyped;
};

//! What the next task applies to its line.
class SHOPLINE_API Modifiers
{
public:
#if defined(SHOPLINE_BREAKS_Form_Modifiers)
    bool isSet(ModifierKind kind);
#else
    bool isSet(ModifierKind kind) const;
#endif
    void set(ModifierKind kind, const QVariant &value);
    void clearAll();

    QVariant value(ModifierKind kind) const
    {
        return m_values.value(kind);
    }
    bool isEmpty() const
    {
        return m_values.isEmpty();
    }

private:
    QMap<ModifierKind, QVariant> m_values;
};

//! The cashier's place.
class SHOPLINE_API Desk
{
public:
    static Desk *current;
    virtual Modifiers *getModifiers();
    virtual ~Desk();

private:
    Modifiers *m_modifiers = nullptr;
};

class SHOPLINE_API Settings
{
public:
    static Settings *current;
#if !defined(SHOPLINE_BREAKS_Table_Services)
    virtual
#endif
        bool
        getBool(const QString &key, bool otherwise) const;
    virtual ~Settings();

    void set(const QString &key, bool value)
    {
        m_values.insert(key, value);
    }

private:
    QMap<QString, bool> m_values;
};

#if defined(SHOPLINE_BREAKS_Form_Services)
using RunAnswer = bool;
#else
using RunAnswer = int;
#endif

//! Runs tasks for programs; the answer is that of a hook.
class SHOPLINE_API TaskLine : public QObject
{
    Q_OBJECT

public:
    static TaskLine *current;
    explicit TaskLine(QObject *parent = nullptr);
    virtual RunAnswer runAction(const Task &task);
};

class SHOPLINE_API Bonus
{
public:
    static Bonus *current;
    virtual void updateDocument(const QSharedPointer<Receipt> &receipt);
    virtual ~Bonus();
};

} // namespace shopline

#endif // SHOPLINE_DESK_H
