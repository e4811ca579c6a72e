#ifndef TILL_RECEIPT_RECEIPT_H
#define TILL_RECEIPT_RECEIPT_H

#include "host/Document.h"
#include "till/receipt/Position.h"

#include <QtCore/QList>
#include <QtCore/QSharedPointer>
#include <QtCore/QStringList>

#include <functional>

namespace till {

//! The receipt in hand: the document that plugins see, and the lines that the cashier sees.
class Receipt : public Document
{
public:
    explicit Receipt(int type);
    //! The receipt that was stored.
    explicit Receipt(const ReceiptRecord &record);

    ReceiptRecord record() const;

    qint64 id() const { return m_id; }
    void setId(qint64 id) { m_id = id; }

    ReceiptState state() const { return m_state; }
    void setState(ReceiptState state) { m_state = state; }

    QStringList softChecks() const { return m_softChecks; }
    void addSoftCheck(const QString &number) { m_softChecks.append(number); }

    //! Every line, stornoed ones too, in the order of adding.
    QList<QSharedPointer<Position>> lines() const { return m_lines; }
    //! The line with that number, stornoed or not; null when there never was one.
    QSharedPointer<Position> line(int posnum) const;

    /*!
     * Whether \a count pieces of \a article can stand in the receipt, in place of \a replaced when
     * it is not null.
     */
    bool hasPlaceFor(const ArticleData &article, double count,
                     const Position *replaced = nullptr) const;

    //! Appends \a count pieces of \a article under the next free number.
    QSharedPointer<Position> add(const QSharedPointer<Article> &article, double count);
    //! Strikes the line; from now on the document does not hold the position. False when unknown.
    bool storno(int posnum);

    //! Sum of the lines that are not stornoed, as of the last recomputation.
    Kopecks total() const { return m_total; }
    //! How often the total was computed since the receipt was made.
    int recomputations() const { return m_recomputations; }

    //! Notes that lines changed: recomputes now, or once when the document is switched on again.
    void touch();

    //! While off nothing is recomputed; on again, once if anything changed meanwhile.
    void setDocumentSwitch(bool on) override;
    void setPluginData(const QString &pluginId, const QString &key, const QVariant &value) override;

    //! Is told what plugins do to the receipt, after the fact. None of it may call back in.
    struct Watcher
    {
        std::function<void(bool on)> switched;
        std::function<void(const QString &pluginId, const QString &key, const QVariant &value)>
            pluginDataSet;
    };
    void setWatcher(const Watcher &watcher) { m_watcher = watcher; }

private:
    //! Sum of the lines that are not stornoed, as of now, but for \a omitted.
    Kopecks sumWithout(const Position *omitted) const;

    qint64 m_id = 0;
    ReceiptState m_state = ReceiptState::Open;
    QStringList m_softChecks;
    int m_nextPosnum = 1;
    QList<QSharedPointer<Position>> m_lines;
    Kopecks m_total = 0;
    int m_recomputations = 0;
    bool m_stale = false;
    Watcher m_watcher;
};

} // namespace till

#endif // TILL_RECEIPT_RECEIPT_H
