#include "host/ActionArguments.h"

namespace control::args {

namespace {

QString positionNumberKey()
{
    return QStringLiteral("positionNumber");
}

QString withoutDialogKey()
{
    return QStringLiteral("withoutDialog");
}

} // namespace

Basic::Basic(const Action &action)
    : m_action(action)
{
}

const Action &Basic::action() const
{
    return m_action;
}

QVariant Basic::value(const QString &key) const
{
    const QVariant *const found = find(key);
    return found ? *found : QVariant();
}

const QVariant *Basic::find(const QString &key) const
{
    return m_action.find(key);
}

void Basic::setValue(const QString &key, const QVariant &value) const
{
    m_action.setArgument(key, value);
}

Core::Core(const Action &action)
    : Basic(action)
{
}

int Core::positionNumber() const
{
    const QVariant *const number = find(positionNumberKey());
    return number ? number->toInt() : 0;
}

void Core::setPositionNumber(int posnum) const
{
    setValue(positionNumberKey(), posnum);
}

Input::Input(const Action &action)
    : Core(action)
{
}

Pos::Pos(const Action &action)
    : Input(action)
{
}

Storno::Storno(const Action &action)
    : Pos(action)
{
}

bool Storno::withoutDialog() const
{
    const QVariant *const without = find(withoutDialogKey());
    return without && without->toBool();
}

void Storno::setWithoutDialog(bool without)
{
    setValue(withoutDialogKey(), without);
}

} // namespace control::args
