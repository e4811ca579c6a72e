#ifndef TILL_RECEIPT_RECEIPT_H
#define TILL_RECEIPT_RECEIPT_H

#include "host/Document.h"
#include "till/receipt/Position.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QSet>
#include <QtCore/QSharedPointer>
#include <QtCore/QStringList>

#include <functional>

namespace till {

//! The current receipt: the document that plugins see, and the lines that the cashier sees.
class Receipt : public Document
{
public:
    explicit Receipt(int type);
    //! The receipt that was stored.
    explicit Receipt(const ReceiptRecord &record);

    ReceiptRecord record() const;

    //! What became of the receipt since `setStored`; all of it before the first one.
    ReceiptUpdate update() const;
    //! The receipt as it stands is stored, under the number \a id.
    void setStored(qint64 id);

    qint64 id() const { return m_id; }

    ReceiptState state() const { return m_state; }
    void setState(ReceiptState state) { m_state = state; }

    QStringList softChecks() const { return m_softChecks; }
    void addSoftCheck(const QString &number) { m_softChecks.append(number); }

    //! Every line, stornoed ones too, in the order of adding.
    QList<QSharedPointer<Position>> lines() const;
    //! Where in them the line with that number is; -1 when there never was one.
    qsizetype placeOf(int posnum) const { return m_places.value(posnum, -1); }
    //! The line with that number, stornoed or not; null when there never was one.
    QSharedPointer<Position> line(int posnum) const;
    //! The same unless it is stornoed.
    QSharedPointer<GoodsItem> getPositionByPosnum(int posnum) const override;

    /*!
     * Whether \a count pieces of \a article can stand in the receipt, in place of the line
     * \a replaced when it is not null.
     */
    bool hasPlaceFor(const ArticleData &article, double count,
                     const Position *replaced = nullptr) const;

    // After a change, `touch` is to be called: once for all that one action changes.

    //! Appends \a count pieces of \a article under the next free number.
    QSharedPointer<Position> add(const QSharedPointer<Article> &article, double count);
    //! Strikes the line; from now on the document does not hold the position. False when unknown.
    bool storno(int posnum);
    //! Notes the line as it stands, which is a change of the receipt.
    void note(const Position &position);
    //! Notes every line that is not as it was noted last: plugins change positions by themselves.
    void noteUnnoted();

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
        std::function<void(const Position &position)> lineNoted;
        std::function<void(const ValueChange &change)> valueChanged;
    };
    void setWatcher(const Watcher &watcher) { m_watcher = watcher; }

private:
    //! A line, and what of it was noted last.
    struct Line
    {
        QSharedPointer<Position> position;
        double count = 0.0;
        double base = 0.0;
        QString groupId;
        bool stornoed = false;
        Kopecks counted = 0; //!< of it in the sum

        bool isNoted() const;
    };

    ReceiptHeader header() const;
    void append(const QSharedPointer<Position> &position);
    //! Brings what is noted of the line, and the sum, up to date.
    void count(Line &line);
    void note(qsizetype place);

    qint64 m_id = 0;
    ReceiptState m_state = ReceiptState::Open;
    QStringList m_softChecks;
    int m_nextPosnum = 1;
    QList<Line> m_lines;
    QHash<int, qsizetype> m_places; //!< of the lines, by their numbers
    bool m_wasStored = false;
    QSet<qsizetype> m_changedPlaces;    //!< since it was stored
    QList<ValueChange> m_changedValues; //!< the same
    Kopecks m_sum = 0;                  //!< of the lines that are not stornoed, as they were noted
    Kopecks m_total = 0;
    int m_recomputations = 0;
    bool m_stale = false;
    Watcher m_watcher;
};

} // namespace till

#endif // TILL_RECEIPT_RECEIPT_H
