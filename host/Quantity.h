#ifndef HOST_QUANTITY_H
#define HOST_QUANTITY_H

#include "host/EQuantMode.h"
#include "host/HostGlobal.h"

#include <QtCore/QMetaType>
#include <QtCore/QObject>

//! An amount of goods, in base units, and how it came about. A value type with metatype "Quantity".
class HOST_EXPORT Quantity
{
    Q_GADGET
    Q_PROPERTY(double amount READ amount CONSTANT)

public:
    //! Amount 0, mode `quantModeNone`, as meta-type machinery needs it.
    Quantity() = default;
    Quantity(double amount, EQuantMode mode);

    double amount() const;
    EQuantMode mode() const;

    //! Quantities are equal when amount and mode are exactly equal.
    bool operator==(const Quantity &other) const;
    bool operator!=(const Quantity &other) const { return !(*this == other); }

private:
    double m_amount = 0.0;
    EQuantMode m_mode = quantModeNone;
};

Q_DECLARE_METATYPE(Quantity)

#endif // HOST_QUANTITY_H
