#ifndef HOST_DOCUMENTWATCHER_H
#define HOST_DOCUMENTWATCHER_H

#include "host/AbstractDocument.h"

#include <vendor/DocumentWatcher.h>

// The third base, which the plugin protects: a host gets at it by the text "DocumentWatcher"
// through qt_metacast alone, never by dynamic_cast or by a name of its own. The SDK's class has to
// be the first base here, for the host takes the address for that of its class.
class DocumentWatcher : public vendor::DocumentWatcher
{
protected:
    ~DocumentWatcher() = default;

    // Only where the SDK calls it otherwise; `document` has to be the QSharedPointer itself.
    QSharedPointer<AbstractDocument> &document = currentDocument;
};

#endif // HOST_DOCUMENTWATCHER_H
