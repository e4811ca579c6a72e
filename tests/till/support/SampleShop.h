#ifndef TESTS_TILL_SUPPORT_SAMPLESHOP_H
#define TESTS_TILL_SUPPORT_SAMPLESHOP_H

#include "till/register/CashDesk.h"

namespace till {

//! A till of the sample shop with the real plugin, on that database.
inline Setup sampleShop(const QString &database)
{
    return {database,
            QStringLiteral(TILL_SHARE_DIR "/catalogue.csv"),
            QStringLiteral(PACKAGINGCONTROL_PLUGIN_FILE),
            {},
            {}};
}

} // namespace till

#endif // TESTS_TILL_SUPPORT_SAMPLESHOP_H
