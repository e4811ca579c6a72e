#ifndef HOST_DOCUMENTWATCHER_H
#define HOST_DOCUMENTWATCHER_H

#include "host/AbstractDocument.h"

//! The shop's holder of the receipt; the plugin calls what it holds `document`.
class DocumentWatcher : public shopline::ReceiptHolder
{
protected:
    ~DocumentWatcher() = default;

    QSharedPointer<AbstractDocument> &document = receiptInHand;
};

#endif // HOST_DOCUMENTWATCHER_H
