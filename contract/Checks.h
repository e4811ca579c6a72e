#ifndef CONTRACT_CHECKS_H
#define CONTRACT_CHECKS_H

#include "contract/Check.h"

//! The checks, by what they look at.
namespace contract {

// Form: read from the host's headers.
Checks signatureChecks();
Checks tableChecks();
Checks numberChecks();
Checks metaTypeChecks();

// Behaviour that shows without a host program.
Checks notifierChecks();
Checks carrierChecks();
Checks serviceChecks();
Checks valueChecks();
Checks logChecks();

// Behaviour of the host program behind the adapter's driver.
Checks startChecks();
Checks eventChecks();
Checks queueChecks();
Checks triggerChecks();
Checks splitChecks();
Checks documentChecks();
Checks cashierChecks();

// The plugin's file in this host.
Checks fileChecks();
Checks receiptChecks();

//! All of them, in the order in which they are run.
Checks allChecks();

//! The file that the last two look at; empty when none was named.
QString pluginFile();
void setPluginFile(const QString &path);

} // namespace contract

#endif // CONTRACT_CHECKS_H
