#ifndef CONTRACT_DRIVER_H
#define CONTRACT_DRIVER_H

#include "host/AbstractDocument.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include <memory>

namespace contract {

//! Thrown by an operation that a driver does not offer; the check is left out then.
struct NotOffered
{
    const char *name;
};

/*!
 * The host program, as far as the kit has to drive it: what the program does when it starts, and
 * what a cashier does. An adapter that has a file `host/ContractDriver.h` offers one there; every
 * operation that it leaves out leaves out some checks.
 *
 * Each driver is made in a process of its own, is used on one thread, and is deleted before that
 * process ends. Amounts are in the goods' base unit, counts in pieces; both are what the position
 * has afterwards. An operation that the host refuses answers false, or 0.
 */
class Driver
{
public:
    virtual ~Driver() = default;

    //! What the program does before it loads plugins: makes its services. The setting is the
    //! plugin's "PackagingControl:allowSaleEmptyTara".
    virtual void start(bool allowSaleEmptyTara) = 0;

    //! Takes up a plugin's object as the host does with a loaded one: asks it for its interface,
    //! calls `init()`, notes it as the one that is told of documents. It outlives the driver. False
    //! when the host does not take it.
    virtual bool attach(QObject *plugin) = 0;

    //! Opens a sale and hands it to the plugin.
    virtual QSharedPointer<AbstractDocument> open() = 0;

    //! A new position of an article that is tara of \a capacity; its number.
    virtual int addTara(double capacity, double count);
    //! A new position of goods that are poured into tara; its number.
    virtual int addGoods(double amount);
    //! The cashier sets the quantity of a position: its amount and its count become \a quantity.
    virtual bool change(int posnum, double quantity);
    //! The cashier stornoes a position, and says yes if asked.
    virtual bool storno(int posnum);
    //! The cashier takes \a parts off a position, each as a new one.
    virtual bool split(int posnum, const QList<double> &parts);
    //! The cashier puts positions into the first of them.
    virtual bool unite(const QList<int> &posnums);
    //! The cashier goes to subtotal.
    virtual bool subtotal();
    //! The cashier adds a soft-check.
    virtual bool addSoftCheck();

    //! What the cashier answers to every question from now on: the confirming choice or the other.
    virtual void answer(bool confirm);
    //! How many questions the cashier was asked so far.
    virtual int questions() const;
    //! The message that the cashier saw last; empty when there was none.
    virtual QString message() const;

    //! Stores the open receipt as the program does, and reads it into a new document.
    virtual QSharedPointer<AbstractDocument> storeAndLoad();
};

//! The adapter's driver; null when it has none.
std::unique_ptr<Driver> makeDriver();

} // namespace contract

#endif // CONTRACT_DRIVER_H
