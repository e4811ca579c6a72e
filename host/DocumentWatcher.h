#ifndef HOST_DOCUMENTWATCHER_H
#define HOST_DOCUMENTWATCHER_H

#include "host/AbstractDocument.h"
#include "host/HostGlobal.h"

#include <QtCore/QSharedPointer>

//! Holds the current document. Its one virtual operation is binary contract.
class HOST_EXPORT DocumentWatcher
{
public:
    DocumentWatcher();
    Q_DISABLE_COPY_MOVE(DocumentWatcher)

    //! Called by the host whenever the current document changes. Holds \a newDocument, null too.
    virtual void setDocument(const QSharedPointer<AbstractDocument> &newDocument);

protected:
    // Never deleted through this base, whose table has no destructor.
    ~DocumentWatcher();

    QSharedPointer<AbstractDocument> document; //!< the current document, or null
};

#endif // HOST_DOCUMENTWATCHER_H
