#ifndef HOST_CONTRACTDRIVER_H
#define HOST_CONTRACTDRIVER_H

#include "contract/Driver.h" // the kit's

// The host program, driven by the kit. This file is for the kit alone; the plugin does not read it.
// Start with the three operations that a driver must have; what else it offers, the kit checks.
class VendorDriver : public contract::Driver
{
public:
    // What the program does before it loads plugins. All services have to be in place when this
    // returns.
    void start(bool allowSaleEmptyTara) override;
    // What it does with the object of a loaded plugin.
    bool attach(QObject *plugin) override;
    // What it does when the cashier opens a receipt.
    QSharedPointer<AbstractDocument> open() override;
};

// Once in the kit's program, so that it needs no inline.
std::unique_ptr<contract::Driver> contract::makeDriver()
{
    return std::make_unique<VendorDriver>();
}

#endif // HOST_CONTRACTDRIVER_H
