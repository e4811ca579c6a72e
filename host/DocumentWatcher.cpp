#include "host/DocumentWatcher.h"

DocumentWatcher::DocumentWatcher() = default;
DocumentWatcher::~DocumentWatcher() = default;

void DocumentWatcher::setDocument(const QSharedPointer<AbstractDocument> &newDocument)
{
    document = newDocument;
}
