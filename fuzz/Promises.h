#ifndef FUZZ_PROMISES_H
#define FUZZ_PROMISES_H

#include "host/Document.h"
#include "tests/support/TestPlugin.h"

namespace fuzz {

//! What the plugin keeps to whatever happens. Each question answers with an empty text, or with
//! what was not kept to.
class Promises
{
public:
    //! From now on \a receipt is looked at too.
    void watch(const QSharedPointer<Document> &receipt);

    //! Between the host's calls: no null records, none twice, no receipt left switched off.
    QString broken(const TestPlugin &plugin) const;
    //! What the document stores gives back the very records, when one is held.
    QString unsaved(const TestPlugin &plugin) const;
    //! Each stored element has become a record.
    QString unrestored(const TestPlugin &plugin) const;

private:
    QList<QSharedPointer<Document>> m_receipts;
};

} // namespace fuzz

#endif // FUZZ_PROMISES_H
