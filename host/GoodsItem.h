#ifndef HOST_GOODSITEM_H
#define HOST_GOODSITEM_H

#include "host/HostGlobal.h"
#include "host/Tmc.h"

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QObject>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QVariant>

/*!
 * One position (line) of a receipt, handled as `QSharedPointer<GoodsItem>`.
 *
 * It keeps two quantities, because an article may be sold in packs: the count of pieces
 * (`getCquant`) and the amount in base units (`getBquant`).
 */
class HOST_EXPORT GoodsItem : public QObject
{
    Q_OBJECT

public:
    //! Position \a posnum of the article \a tmc, which must not be null. Both quantities are 0.
    GoodsItem(int posnum, QSharedPointer<Tmc> tmc);
    ~GoodsItem() override;

    //! Position number, unique within the receipt.
    int getPosnum() const;

    //! The catalogue record. Never null; shared with the catalogue, not given away.
    Tmc *getTmc();
    //! Tara capacity of one unit of the article; whatever the catalogue holds, to be read as a
    //! number.
    QVariant getTmcTaraCapacity() const;

    //! Quantity in base units: what is poured.
    double getBquant() const;
    void setBquant(double quantity);

    //! Count of pieces.
    double getCquant() const;
    void setCquant(double count);

    //! Identifier of the group of positions that this one belongs to; empty when none.
    QString getGroupId() const;
    void setGroupId(const QString &groupId);

private:
    int m_posnum;
    QSharedPointer<Tmc> m_tmc;
    double m_bquant = 0.0;
    double m_cquant = 0.0;
    QString m_groupId;
};

//! Metatype "GoodsItemPtr": equality, order, debug output, conversion to `QObject *`.
using GoodsItemPtr = QSharedPointer<GoodsItem>;
//! Metatype "GoodsItemPtrList", with a view as a sequential container.
using GoodsItemPtrList = QList<QSharedPointer<GoodsItem>>;

#endif // HOST_GOODSITEM_H
