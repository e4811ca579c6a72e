#ifndef HOST_CONFIG_H
#define HOST_CONFIG_H

#include "host/HostGlobal.h"
#include "host/Singleton.h"

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QVariant>

/*!
 * The host's settings. A key is a class name, a colon and the setting's name, for example
 * "PackagingControl:allowSaleEmptyTara". A new object holds none.
 */
class HOST_EXPORT Config
{
public:
    Config();
    Q_DISABLE_COPY_MOVE(Config)

    /*!
     * The boolean setting under \a key. True is written true, yes, on or 1, false is written false,
     * no, off or 0, in any case of letters. \a defaultValue when the key is absent or written
     * otherwise; the latter is warned about through Qt's logging.
     */
    virtual bool getBool(const QString &key, bool defaultValue) const;

    virtual ~Config();

    //! Sets \a key to \a value, replacing an earlier one.
    void set(const QString &key, const QVariant &value);

private:
    QMap<QString, QVariant> m_values;
};

template <>
HOST_EXPORT SingletonSlot<Config> Singleton<Config>::instance;

#endif // HOST_CONFIG_H
