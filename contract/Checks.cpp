#include "contract/Checks.h"

namespace contract {

namespace {

QString &file()
{
    static QString path;
    return path;
}

} // namespace

Checks allChecks()
{
    return signatureChecks() + tableChecks() + numberChecks() + metaTypeChecks() + notifierChecks()
           + carrierChecks() + serviceChecks() + valueChecks() + logChecks() + startChecks()
           + eventChecks() + queueChecks() + triggerChecks() + splitChecks() + documentChecks()
           + cashierChecks() + fileChecks() + receiptChecks();
}

QString pluginFile()
{
    return file();
}

void setPluginFile(const QString &path)
{
    file() = path;
}

} // namespace contract
