#ifndef TESTS_TILL_KILL_KILLFIXTURE_H
#define TESTS_TILL_KILL_KILLFIXTURE_H

#include "tests/till/kill/Cashier.h"
#include "tests/till/kill/Tally.h"
#include "tests/till/kill/TillProcess.h"
#include "tests/till/storage/StorageFixture.h"

#include <vector>

namespace till {

//! A cashier who plays random receipts on one database, and loses the till again and again.
class KilledTill : public StorageTest
{
protected:
    KilledTill();

    /*!
     * Plays and kills \a kills times, and compares what is stored after each; tells of them. When a
     * kill finds the till at what is up to the machine: there are more until they have proved
     * something, within reason.
     */
    void killUntilTelling(int kills);
    //! Learns how long things take on this machine.
    void measure();
    //! Starts the till, lets it carry out some commands and kills it in the middle of one.
    void playAndKill();
    //! Kills the till while it makes the database \a name, or soon after.
    void killWhileItMakes(const QString &name);
    //! A till that is started on the database \a name opens its first receipt.
    void checkUsable(const QString &name);
    //! Compares what is stored with what the trace told before the kill.
    void checkStored();
    //! Every receipt of the database is as the traces told it.
    void checkEveryReceipt() const;

    const Tally &tally() const { return m_tally; }
    qsizetype receipts() const { return m_trace.finished().size() + 1; }

private:
    using Clock = TillProcess::Clock;
    using Stage = TraceReader::Stage;

    static QStringList arguments(const QString &database);
    void start();
    void send(TillProcess &till);
    QByteArray thinkOfCommand();
    bool follow(TillProcess &till, Clock::time_point end = TillProcess::givenUp());
    void read(const QJsonObject &note);
    void checkTakenUp() const;
    void checkRegistry(const Storage &storage) const;
    void count(bool isStored);
    Clock::duration usualTime() const;
    Clock::duration partOf(Clock::duration usual);

    Cashier m_cashier;
    TraceReader m_trace;
    QByteArrayList m_sent;     //!< commands that this till was sent
    bool m_isUnderWay = false; //!< the last of them is not acknowledged
    QJsonObject m_saved;       //!< what the plugin had saved when the till was started
    bool m_savesAgain = false; //!< the command under way makes it save this again
    Clock::duration m_startTime{};
    std::vector<Clock::duration> m_times; //!< of commands
    Tally m_tally;
};

} // namespace till

#endif // TESTS_TILL_KILL_KILLFIXTURE_H
