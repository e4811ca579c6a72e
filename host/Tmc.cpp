#include "host/Tmc.h"

Tmc::Tmc(int taraMode, const QVariant &taraCapacity)
    : m_taraMode(taraMode)
    , m_taraCapacity(taraCapacity)
{
}

int Tmc::getTaraMode() const
{
    return m_taraMode;
}

QVariant Tmc::getTaraCapacity() const
{
    return m_taraCapacity;
}
