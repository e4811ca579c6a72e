#ifndef HOST_ACTIONARGUMENTS_H
#define HOST_ACTIONARGUMENTS_H

#include "host/Action.h"
#include "host/HostGlobal.h"

//! Typed views of an action's arguments. A view writes through to the action that it was made over.
namespace control::args {

//! Base of the views: holds the action.
class HOST_EXPORT Basic
{
public:
    explicit Basic(const Action &action);

    //! The action that this view reads and writes.
    const Action &action() const;

protected:
    QVariant value(const QString &key) const;
    //! The same without a copy, valid until an argument is set; null when there is none.
    const QVariant *find(const QString &key) const;
    void setValue(const QString &key, const QVariant &value) const;

private:
    Action m_action;
};

//! What every action on a position carries.
class HOST_EXPORT Core : public Basic
{
public:
    explicit Core(const Action &action);

    //! Number of the position that the action is about; 0, which no position has, when none is set.
    int positionNumber() const;
    void setPositionNumber(int posnum) const;
};

//! Arguments of actions that take input. No plugin reads any.
class HOST_EXPORT Input : public Core
{
public:
    explicit Input(const Action &action);
};

//! Arguments of actions on a whole position. No plugin reads any.
class HOST_EXPORT Pos : public Input
{
public:
    explicit Pos(const Action &action);
};

//! Arguments of a storno.
class HOST_EXPORT Storno : public Pos
{
public:
    explicit Storno(const Action &action);

    //! Whether the host stornoes without asking the cashier; false when not set.
    bool withoutDialog() const;
    void setWithoutDialog(bool without);
};

} // namespace control::args

#endif // HOST_ACTIONARGUMENTS_H
