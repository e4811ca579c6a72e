#ifndef HOST_ABSTRACTDOCUMENT_H
#define HOST_ABSTRACTDOCUMENT_H

#include "host/GoodsItem.h"
#include "host/HostGlobal.h"
#include "host/Order.h"

#include <QtCore/QList>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QVariant>

//! The current document (a receipt), handled as `QSharedPointer<AbstractDocument>`.
class HOST_EXPORT AbstractDocument
{
public:
    AbstractDocument();
    Q_DISABLE_COPY_MOVE(AbstractDocument)

    //! Type code; 1 is a sale receipt.
    virtual int getType() const = 0;
    //! The order attached to the document, or null.
    virtual QSharedPointer<Order> getOrder() const = 0;
    //! The position with that number, or null when the document holds none.
    virtual QSharedPointer<GoodsItem> getPositionByPosnum(int posnum) const = 0;
    //! Off, the document is neither recomputed nor shown while it changes; on, both once.
    virtual void setDocumentSwitch(bool on) = 0;
    //! The positions of the document, in its order, without stornoed ones.
    virtual QList<QSharedPointer<GoodsItem>> getPositionList() const = 0;
    //! What a plugin stored under \a key, or \a defaultValue.
    virtual QVariant getPluginData(const QString &pluginId, const QString &key,
                                   const QVariant &defaultValue) const = 0;
    //! Stores \a value for a plugin under \a key, replacing what was there.
    virtual void setPluginData(const QString &pluginId, const QString &key,
                               const QVariant &value) = 0;

    virtual ~AbstractDocument();
};

#endif // HOST_ABSTRACTDOCUMENT_H
