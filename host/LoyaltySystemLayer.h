#ifndef HOST_LOYALTYSYSTEMLAYER_H
#define HOST_LOYALTYSYSTEMLAYER_H

#include "host/AbstractDocument.h"
#include "host/HostGlobal.h"
#include "host/Singleton.h"

#include <QtCore/QSharedPointer>

//! Discounts and bonuses. A host program puts its own into the singleton.
class HOST_EXPORT LoyaltySystemLayer
{
public:
    LoyaltySystemLayer();
    Q_DISABLE_COPY_MOVE(LoyaltySystemLayer)

    //! Recomputes \a document after many changes at once. Without a host program: nothing.
    virtual void updateDocument(const QSharedPointer<AbstractDocument> &document);

    virtual ~LoyaltySystemLayer();
};

template <>
HOST_EXPORT SingletonSlot<LoyaltySystemLayer> Singleton<LoyaltySystemLayer>::instance;

#endif // HOST_LOYALTYSYSTEMLAYER_H
