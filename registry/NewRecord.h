#ifndef REGISTRY_NEWRECORD_H
#define REGISTRY_NEWRECORD_H

#include <QtCore/QSharedPointer>

#include <memory>

namespace packaging {

/*!
 * A new record. Made without `QSharedPointer::create()`, which in Qt 6.4 destroys a pointer that it
 * did not set yet, when there is no memory for the record.
 */
template <typename Record>
QSharedPointer<Record> newRecord()
{
    auto record = std::make_unique<Record>();
    const QSharedPointer<Record> shared(record.get());
    static_cast<void>(record.release());
    return shared;
}

} // namespace packaging

#endif // REGISTRY_NEWRECORD_H
