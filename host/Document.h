#ifndef HOST_DOCUMENT_H
#define HOST_DOCUMENT_H

#include "host/AbstractDocument.h"
#include "host/HostGlobal.h"

#include <QtCore/QMap>

//! A document held in memory.
class HOST_EXPORT Document : public AbstractDocument
{
public:
    //! Type codes of documents. Plugins that work on sales ask for `Sale`; the others are this
    //! host's.
    enum Type : int {
        Sale = 1,   //!< a sale receipt
        Return = 2, //!< a return receipt
    };

    explicit Document(int type = Sale);
    ~Document() override;

    int getType() const override;
    QSharedPointer<Order> getOrder() const override;
    QSharedPointer<GoodsItem> getPositionByPosnum(int posnum) const override;
    void setDocumentSwitch(bool on) override;
    QList<QSharedPointer<GoodsItem>> getPositionList() const override;
    QVariant getPluginData(const QString &pluginId, const QString &key,
                           const QVariant &defaultValue) const override;
    void setPluginData(const QString &pluginId, const QString &key, const QVariant &value) override;

    //! Attaches \a order; null detaches it.
    void setOrder(const QSharedPointer<Order> &order);
    //! Appends \a position, which must not be null and whose number must be free in this document.
    void addPosition(const QSharedPointer<GoodsItem> &position);
    //! Takes the position out. False when there is none with that number.
    bool removePosition(int posnum);
    //! What `setDocumentSwitch` said last; true at first.
    bool isSwitchedOn() const;

    //! Everything that plugins stored: by plugin identifier, then by key.
    using PluginData = QMap<QString, QVariantMap>;
    PluginData pluginData() const;

private:
    int m_type;
    QSharedPointer<Order> m_order;
    QList<QSharedPointer<GoodsItem>> m_positions;
    PluginData m_pluginData;
    bool m_switchedOn = true;
};

#endif // HOST_DOCUMENT_H
