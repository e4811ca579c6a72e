#ifndef TESTS_TILL_MEMORY_SHORTTILL_H
#define TESTS_TILL_MEMORY_SHORTTILL_H

#include "tests/till/kill/TillProcess.h"
#include "tests/till/kill/ToldReceipt.h"
#include "tests/till/storage/StorageFixture.h"

#include <QtCore/QSet>

namespace till {

//! When a till is short of memory.
struct Shortage
{
    long at = 0;        //!< the allocation that fails, counted from 1; 0 for none
    bool isOver = true; //!< the next one succeeds again
};

//! How a till went through the script.
struct Course
{
    QStringList outcomes; //!< of the script's commands, as far as they came to one
    int failed = 0;       //!< commands that were not carried out, and given once more
    bool isEnded = false; //!< the till went before the script did
    int status = 0;       //!< its exit status; -1 when it did not exit
};

//! What became of all shortages.
struct ShortageTally
{
    int ended = 0;     //!< the till ended
    int failed = 0;    //!< it said that a command was not carried out
    int unnoticed = 0; //!< it could do without the memory
};

//! A till that plays a script of all commands while an allocation of its process fails.
class ShortTill : public StorageTest
{
protected:
    ShortTill();

    //! How many allocations the till makes when none fails.
    long countAllocations();
    //! Plays the script with a shortage on a new database, and looks at what is left.
    void playAndLook(const Shortage &shortage);

    const ShortageTally &tally() const { return m_tally; }
    //! The first words of the script's lines.
    QSet<QByteArray> commands() const;

private:
    Course play(const Shortage &shortage);
    QString carryOut(TillProcess &till, const QByteArray &step);
    void readRest(TillProcess &till);
    void checkStored();
    void checkNextStart();
    void count(const Course &course);

    QByteArrayList m_steps; //!< lines, each with the answers that it needs
    Course m_usual;         //!< without a shortage
    TraceReader m_trace;
    QString m_database;
    int m_databases = 0;
    ShortageTally m_tally;
};

} // namespace till

#endif // TESTS_TILL_MEMORY_SHORTTILL_H
