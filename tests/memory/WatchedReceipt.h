#ifndef TESTS_MEMORY_WATCHEDRECEIPT_H
#define TESTS_MEMORY_WATCHEDRECEIPT_H

#include "host/Document.h"
#include "tests/memory/Records.h"

//! A host's receipt, as the plugin sees it, that counts what the plugin writes into it.
class WatchedReceipt : public AbstractDocument
{
public:
    explicit WatchedReceipt(const QSharedPointer<Document> &receipt)
        : m_receipt(receipt)
    {
    }

    int getType() const override { return m_receipt->getType(); }
    QSharedPointer<Order> getOrder() const override { return m_receipt->getOrder(); }
    QSharedPointer<GoodsItem> getPositionByPosnum(int posnum) const override
    {
        return m_receipt->getPositionByPosnum(posnum);
    }
    void setDocumentSwitch(bool on) override { m_receipt->setDocumentSwitch(on); }
    QList<QSharedPointer<GoodsItem>> getPositionList() const override
    {
        return m_receipt->getPositionList();
    }
    QVariant getPluginData(const QString &pluginId, const QString &key,
                           const QVariant &defaultValue) const override
    {
        return m_receipt->getPluginData(pluginId, key, defaultValue);
    }
    void setPluginData(const QString &pluginId, const QString &key, const QVariant &value) override
    {
        Writes &writes = key == QLatin1String("taraInfo") ? taras : goods;
        ++writes.begun;
        m_receipt->setPluginData(pluginId, key, value);
        ++writes.finished;
        if (remembers && &writes == &goods)
            saves.append(records());
    }

    //! What the receipt keeps now.
    Records records() const { return storedRecords(*m_receipt); }

    //! Writes of one list.
    struct Writes
    {
        int begun = 0;
        int finished = 0; //!< less than `begun` when the receipt itself had no memory
    };
    Writes taras;
    Writes goods;

    bool remembers = false;
    QList<Records> saves; //!< what each save left in the receipt, while it remembers

private:
    QSharedPointer<Document> m_receipt;
};

#endif // TESTS_MEMORY_WATCHEDRECEIPT_H
