#ifndef TILL_DATABASE_VARIANTBYTES_H
#define TILL_DATABASE_VARIANTBYTES_H

#include "till/result/Result.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <optional>

namespace till {

//! A variant as bytes that can be kept and that give the same variant back, with its types.
struct VariantBytes
{
    QByteArray bytes; //!< as QDataStream writes it
    QString types;    //!< the types in it that are not Qt Core's own, one a line

    // The reasons of both faults are words that follow "the data".

    //! The bytes of \a value, unless it is or holds a value that has no stream operators.
    static Result<VariantBytes> of(const QVariant &value);

    //! The variant. Only for bytes that are known to be whole: damaged ones may take any amount of
    //! memory.
    Result<QVariant> value() const;

private:
    std::optional<QVariant> decode() const;
};

} // namespace till

#endif // TILL_DATABASE_VARIANTBYTES_H
