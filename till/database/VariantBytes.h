#ifndef TILL_DATABASE_VARIANTBYTES_H
#define TILL_DATABASE_VARIANTBYTES_H

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

    /*!
     * The bytes of \a value. Nothing, and the name of the type in \a culprit, when it is or holds a
     * value that has no stream operators.
     */
    static std::optional<VariantBytes> of(const QVariant &value, QString *culprit);

    //! The variant; nothing, and \a reason in words that follow "the data", when there is none.
    //! Only for bytes that are known to be whole: damaged ones may take any amount of memory.
    std::optional<QVariant> value(QString *reason) const;

private:
    std::optional<QVariant> decode() const;
};

} // namespace till

#endif // TILL_DATABASE_VARIANTBYTES_H
