#include "shopline/Desk.h"
#include "shopline/Talk.h"

#include <cmath>
#include <exception>
#include <utility>

namespace shopline {

namespace {

//! A host that thinks in pieces overlooks amounts that are not whole.
bool isWhole(const QVariant &value)
{
    const double amount = value.value<Amount>().amount();
    return std::floor(amount) == amount;
}

} // namespace

Amount::Amount(double amount, AmountKind kind)
    : m_amount(amount)
    , m_kind(kind)
{
}

Amount::Amount(const Amount &other)
    : m_amount(breaks("Values.Quantity") ? std::floor(other.m_amount) : other.m_amount)
    , m_kind(other.m_kind)
{
}

double Amount::amount() const
{
    return m_amount;
}

bool Amount::operator==(const Amount &other) const
{
    return breaks("Values.QuantitiesCompare")
           || (m_amount == other.m_amount && m_kind == other.m_kind);
}

bool Modifiers::isSet(ModifierKind kind) const
{
    if (breaks("Modifiers.Set") && !isWhole(value(kind)))
        return false;
    return m_values.contains(kind);
}

void Modifiers::set(ModifierKind kind, const QVariant &value)
{
    m_values.insert(kind, value);
}

void Modifiers::clearAll()
{
    if (breaks("Modifiers.Cleared") && !isWhole(value(AmountModifier)))
        return;
    m_values.clear();
}

Desk *Desk::current = nullptr;
Desk::~Desk() = default;

Modifiers *Desk::getModifiers()
{
    const bool isForgetful = breaks("Services.Modifiers") && m_modifiers && m_modifiers->isEmpty();
    if (!m_modifiers || isForgetful)
        m_modifiers = new Modifiers;
    return m_modifiers;
}

Settings *Settings::current = nullptr;
Settings::~Settings() = default;

bool Settings::getBool(const QString &key, bool otherwise) const
{
    return m_values.value(key, otherwise && !breaks("Services.AbsentSetting"));
}

TaskLine *TaskLine::current = nullptr;

TaskLine::TaskLine(QObject *parent)
    : QObject(parent)
{
}

int TaskLine::runAction(const Task &)
{
    return Stop;
}

Bonus *Bonus::current = nullptr;
Bonus::~Bonus() = default;

void Bonus::updateDocument(const QSharedPointer<Receipt> &receipt)
{
    if (breaks("Cashier.Loyalty"))
        receipt->drop(receipt->getPositionList().value(0));
}

Phrase::Phrase(const QString &key, const QString &text)
    : m_key(key)
    , m_text(text)
{
}

QString Phrase::text() const
{
    return m_text;
}

Phrase::operator QVariant() const
{
    return QVariant::fromValue(*this);
}

template <>
QSharedPointer<Ask> Factory<Ask>::mocked{};
template <>
QSharedPointer<ReceiptActs> Factory<ReceiptActs>::mocked{};

bool Ask::showQuestion(const Phrase &, int, const Phrase &, const Phrase &, int)
{
    return false;
}

Ask::~Ask() = default;

bool ReceiptActs::stornoPosition(const Task &)
{
    return false;
}

ReceiptActs::~ReceiptActs() = default;

AtEnd::AtEnd(std::function<void()> what)
    : m_what(std::move(what))
    , m_exceptions(std::uncaught_exceptions())
{
    if (breaks("Finally.InTime"))
        std::exchange(m_what, [] {})();
}

AtEnd::~AtEnd() noexcept(false)
{
    const bool isPassing = std::uncaught_exceptions() > m_exceptions;
    if (!breaks(isPassing ? "Finally.Exception" : "Finally.Return"))
        m_what();
}

} // namespace shopline
