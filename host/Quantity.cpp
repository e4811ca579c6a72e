#include "host/Quantity.h"

Quantity::Quantity(double amount, EQuantMode mode)
    : m_amount(amount)
    , m_mode(mode)
{
}

double Quantity::amount() const
{
    return m_amount;
}

EQuantMode Quantity::mode() const
{
    return m_mode;
}

bool Quantity::operator==(const Quantity &other) const
{
    return m_amount == other.m_amount && m_mode == other.m_mode;
}

#include "moc_Quantity.cpp"
