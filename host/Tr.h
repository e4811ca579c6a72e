#ifndef HOST_TR_H
#define HOST_TR_H

#include "host/HostGlobal.h"

#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QVariant>

namespace tr {

/*!
 * A message for the cashier: a stable key, by which a host finds a translation, and the Russian
 * text that is shown without one. A value type with metatype "tr::Tr".
 */
class HOST_EXPORT Tr
{
public:
    //! No message, as meta-type machinery needs it.
    Tr() = default;
    Tr(const QString &key, const QString &text);

    QString key() const;
    QString text() const;

    //! The message as an event argument; `value<tr::Tr>()` gives it back.
    operator QVariant() const;

    bool operator==(const Tr &other) const;
    bool operator!=(const Tr &other) const { return !(*this == other); }

private:
    QString m_key;
    QString m_text;
};

} // namespace tr

Q_DECLARE_METATYPE(tr::Tr)

#endif // HOST_TR_H
