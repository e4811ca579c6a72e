#ifndef TESTS_MODEL_REALRECEIPT_H
#define TESTS_MODEL_REALRECEIPT_H

#include "host/Document.h"
#include "host/GoodsItem.h"
#include "tests/model/Shop.h"

namespace model {

class RealHost;

//! A line of a receipt, as the host's contract has it.
class RealPosition : public GoodsItem
{
public:
    RealPosition(int posnum, const Article &article);

    const Article &article() const { return m_article; }
    void setCount(double count);
    void setBase(double base);
    QSharedPointer<RealPosition> clone() const;

private:
    const Article &m_article;
};

//! A receipt that tells the host's journal what the plugin does to it.
class RealReceipt : public Document
{
public:
    RealReceipt(RealHost &host, int number, int type);

    void setDocumentSwitch(bool on) override;
    QVariant getPluginData(const QString &pluginId, const QString &key,
                           const QVariant &defaultValue) const override;
    void setPluginData(const QString &pluginId, const QString &key, const QVariant &value) override;

    QSharedPointer<RealPosition> newPosition(const Article &article, double count);
    QSharedPointer<RealPosition> line(int posnum) const; //!< stornoed ones too
    QList<QSharedPointer<RealPosition>> liveLines() const;
    QSharedPointer<RealPosition> live(int which) const;
    const QList<QSharedPointer<RealPosition>> &lines() const { return m_lines; }

    //! Lines and what the plugin stored, to come back to.
    struct Moment
    {
        QList<QSharedPointer<RealPosition>> lines; //!< stornoed ones too
        QList<bool> areLive;
        PluginData data;
    };
    Moment moment() const;
    void returnTo(const Moment &moment);

    const int number;
    bool hasSoftCheck = false;

private:
    RealHost &m_host;
    QList<QSharedPointer<RealPosition>> m_lines;
};

} // namespace model

#endif // TESTS_MODEL_REALRECEIPT_H
