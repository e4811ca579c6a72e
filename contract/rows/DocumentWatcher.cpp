#include "host/DocumentWatcher.h"

#include "contract/rows/Row.h"

namespace rowsDocumentWatcher {

#if ROW(1) // DocumentWatcher::setDocument(const QSharedPointer<AbstractDocument> &)
struct Setter : DocumentWatcher
{
    void setDocument(const QSharedPointer<AbstractDocument> &d) override
    {
        DocumentWatcher::setDocument(d);
    }
};
#endif

#if ROW(2) // DocumentWatcher::document, a QSharedPointer<AbstractDocument>
struct Holder : DocumentWatcher
{
    QSharedPointer<AbstractDocument> held() const { return document; }
    void drop() { document.reset(); }
};
#endif

#if ROW(3) // DocumentWatcher.h brings AbstractDocument whole
inline int type(AbstractDocument &document)
{
    return document.getType();
}
#endif

} // namespace rowsDocumentWatcher
