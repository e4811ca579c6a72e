#ifndef TILL_RECEIPT_RECEIPT_H
#define TILL_RECEIPT_RECEIPT_H

#include "host/Document.h"
#include "till/goods/Article.h"

#include <QtCore/QList>
#include <QtCore/QSharedPointer>
#include <QtCore/QStringList>

#include <functional>

namespace till {

//! The greatest count of pieces in a position. What is above is a slip of the finger.
constexpr double greatestCount = 999'999.999;
//! The greatest sum of a receipt: what a cashier can type, far from where sums would overflow.
constexpr Kopecks greatestSum = 99'999'999'999'999;

//! Why \a count pieces cannot stand in one position; empty when they can.
QString countFault(double count);

//! How far a receipt has come.
enum class ReceiptState : int {
    Open = 0,
    Subtotal = 1, //!< at subtotal: nothing is sold any more, payment is awaited
    Closed = 2,   //!< paid
    Cancelled = 3,
};

//! A position as it is stored. Stornoed positions stay in the receipt as struck lines.
struct LineRecord
{
    int posnum = 0;
    ArticleData article; //!< as it was when the position was added
    double count = 0.0;  //!< pieces
    double base = 0.0;   //!< base units
    QString groupId;
    bool stornoed = false;

    bool operator==(const LineRecord &other) const = default;
};

//! A receipt as it is stored: everything that a register needs to go on with it.
struct ReceiptRecord
{
    qint64 id = 0; //!< number of the receipt in the database; 0 until it was stored
    int type = Document::Sale;
    ReceiptState state = ReceiptState::Open;
    QString order;           //!< number of the attached order, empty when there is none
    QStringList softChecks;  //!< numbers of the added soft-checks
    int nextPosnum = 1;      //!< numbers below are never used again in this receipt
    QList<LineRecord> lines; //!< in the order of adding
    Document::PluginData pluginData;

    bool operator==(const ReceiptRecord &other) const = default;
};

//! A line of the receipt.
class Position : public GoodsItem
{
public:
    Position(int posnum, const QSharedPointer<Article> &article);

    const ArticleData &article() const { return m_article->data; }

    //! Sets the count of pieces; the base quantity follows by the article's pack.
    void setCount(double count);
    //! Sets the base quantity; the count of pieces follows by the article's pack.
    void setBase(double base);

    //! Price of the whole line.
    Kopecks sum() const;

    bool isStornoed() const { return m_stornoed; }
    void setStornoed() { m_stornoed = true; }

    LineRecord record() const;

private:
    QSharedPointer<Article> m_article;
    bool m_stornoed = false;
};

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
     * Why \a count pieces of \a article cannot stand in the receipt, in place of \a replaced when
     * it is not null; empty when they can.
     */
    QString limitFault(const ArticleData &article, double count,
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
