#ifndef TESTS_TILL_KILL_TOLDRECEIPT_H
#define TESTS_TILL_KILL_TOLDRECEIPT_H

#include "till/course/RebuiltReceipt.h"
#include "till/storage/Storage.h"

#include <QtCore/QByteArrayList>
#include <QtCore/QList>

#include <ostream>

namespace till {

/*!
 * A receipt as the trace tells it, built from the notes alone: what became of its positions, what
 * the plugin saved, which actions ended well.
 */
struct ToldReceipt : RebuiltReceipt
{
    //! The notes that the journal keeps.
    QByteArrayList journal;

    bool operator==(const ToldReceipt &other) const = default;

    bool isOpen() const
    {
        return record.id != 0
               && (record.state == ReceiptState::Open || record.state == ReceiptState::Subtotal);
    }
    //! Whether the plugin watches it.
    bool isWatched() const
    {
        return record.type == Document::Sale && record.order.isEmpty()
               && record.softChecks.isEmpty();
    }

    //! The same receipt as the next till has it: open, so that it goes through subtotal again.
    ToldReceipt asTakenUp() const;

    //! The same receipt as the database has it.
    static ToldReceipt stored(const Storage &storage, qint64 id);
};

void PrintTo(const ToldReceipt &receipt, std::ostream *out);

//! Follows a trace, command by command.
class TraceReader
{
public:
    //! How far the command under way is. Without one it is `Idle`.
    enum class Stage {
        Idle,
        Acting,  //!< its actions are being carried out
        Storing, //!< they have ended; it is stored now or soon
        Stored,  //!< it is told to be stored, but not acknowledged
    };

    //! A till is started on what was left: what is still to be told counts from here.
    void restart();

    void read(const QJsonObject &note);

    Stage stage() const { return m_stage; }
    //! The newest receipt after the last acknowledged command.
    const ToldReceipt &acknowledged() const { return m_acknowledged; }
    //! The same after the command under way, as far as it is told.
    ToldReceipt underWay() const;
    //! Receipts before the newest.
    const QList<ToldReceipt> &finished() const { return m_finished; }

    //! What the next till has to tell that it takes up: the newest receipt, if it is open.
    ToldReceipt toTakeUp() const;
    //! The receipt as the started till told that it took it up; number 0 when it took up none.
    const ToldReceipt &takenUp() const { return m_takenUp; }

    //! What a database has of the command under way, which was interrupted.
    enum class Found {
        Nothing, //!< what was acknowledged before, and no more
        Whole,
        Half, //!< or something else that should not be
    };
    Found foundIn(const Storage &storage) const;

    //! The command under way turned out to be stored.
    void acceptUnderWay();

private:
    void readTakeup(const QJsonObject &note);
    void readTakenUp(const QJsonObject &note, const QString &kind);
    void readCommand(const QJsonObject &note, const QString &kind);
    void readAction(const QJsonObject &note);
    void readResult(const QJsonObject &note);
    void readReceipt(const QJsonObject &note);
    void keepJournal();
    bool isEndOfCommand(const QJsonObject &result) const;
    void forgetUnderWay();

    ToldReceipt m_acknowledged;
    ToldReceipt m_underWay;
    ToldReceipt m_takenUp;
    QList<ToldReceipt> m_finished;
    QJsonObject m_unkept;      //!< the note of the command under way, unless the journal has it
    QByteArrayList m_unstored; //!< journal notes of the command under way, until a save
    QList<QJsonObject> m_actions;
    QString m_command;
    Stage m_stage = Stage::Idle;
    bool m_opens = false;   //!< the command under way opens a receipt
    bool m_takesUp = false; //!< it is told what a receipt is that was stored before
};

} // namespace till

#endif // TESTS_TILL_KILL_TOLDRECEIPT_H
