#ifndef HOST_ORDER_H
#define HOST_ORDER_H

#include <QtCore/QString>

//! An order attached to a receipt. Plugins only ask whether there is one.
struct Order
{
    QString number; //!< the order's number as the shop writes it
};

#endif // HOST_ORDER_H
