#ifndef SHOPLINE_RECEIPT_H
#define SHOPLINE_RECEIPT_H

#include "shopline/Goods.h"

#include <QtCore/QList>
#include <QtCore/QMap>

namespace shopline {

struct Preorder
{
    QString number;
};

#if defined(SHOPLINE_BREAKS_Form_Document)
using DataAnswer = QString;
#else
using DataAnswer = QVariant;
#endif
#if defined(SHOPLINE_BREAKS_Table_Document)
#    define SHOPLINE_VIRTUAL
#else
#    define SHOPLINE_VIRTUAL virtual
#endif

//! A receipt of the shop.
class SHOPLINE_API Receipt
{
public:
    virtual ~Receipt();

    SHOPLINE_VIRTUAL int getType() const;
    virtual QSharedPointer<Preorder> getOrder() const;
    virtual LinePtr getPositionByPosnum(int number) const;
    virtual void setDocumentSwitch(bool on);
    virtual QList<LinePtr> getPositionList() const;
    virtual DataAnswer getPluginData(const QString &plugin, const QString &key,
                                     const QVariant &otherwise) const;
#if defined(SHOPLINE_BREAKS_Table_DocumentData)
    virtual void between();
#endif
    virtual void setPluginData(const QString &plugin, const QString &key, const QVariant &value);

    // The shop's own.

    LinePtr find(int number) const;
    LinePtr append(const Article &article, double quantity, const LinePtr &made = {});
    int nextNumber() const
    {
        return m_made + 1;
    }
    void drop(const LinePtr &line);

    //! As the shop keeps it between two days.
    QByteArray store() const;
    static QSharedPointer<Receipt> load(const QByteArray &stored);

private:
    using Data = QMap<QString, QVariantMap>;

    QList<LinePtr> m_lines;
    Data m_data;
    int m_made = 0;
    bool m_isOn = true;
    bool m_isLoaded = false;
};

//! Whoever wants to know the current receipt.
class SHOPLINE_API ReceiptHolder
{
public:
#if defined(SHOPLINE_BREAKS_Table_Watcher)
    virtual void before();
#endif
#if defined(SHOPLINE_BREAKS_Form_Watcher)
    virtual void setDocument(QSharedPointer<Receipt> &receipt);
#else
    virtual void setDocument(const QSharedPointer<Receipt> &receipt);
#endif

protected:
    ~ReceiptHolder() = default;

    QSharedPointer<Receipt> receiptInHand;
};

} // namespace shopline

#endif // SHOPLINE_RECEIPT_H
