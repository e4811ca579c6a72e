#ifndef HOST_DOCUMENTLOGIC_H
#define HOST_DOCUMENTLOGIC_H

#include "host/Action.h"
#include "host/HostGlobal.h"
#include "host/MockFactory.h"

//! What the host can do to the current document. Made for one use by `MockFactory`.
class HOST_EXPORT DocumentLogic
{
public:
    DocumentLogic();
    Q_DISABLE_COPY_MOVE(DocumentLogic)

    /*!
     * Stornoes the position that \a action (type 132) names. The effect shows in the document, and
     * its event has been delivered, when the call returns. True when the position was stornoed.
     * Without a host program nothing can be carried out: this implementation answers false.
     */
    virtual bool stornoPosition(const control::Action &action);

    virtual ~DocumentLogic();
};

template <>
HOST_EXPORT QSharedPointer<DocumentLogic> MockFactory<DocumentLogic>::mocked;

#endif // HOST_DOCUMENTLOGIC_H
