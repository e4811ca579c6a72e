#ifndef TILL_REGISTER_JOURNAL_H
#define TILL_REGISTER_JOURNAL_H

#include "till/course/Notes.h"
#include "till/storage/Storage.h"

namespace till {

//! Collects what is kept of the notes of one command, until it is taken to be stored.
class Journal
{
public:
    explicit Journal(Notes &notes);
    Q_DISABLE_COPY_MOVE(Journal)

    //! A command begins. What was noted before it belongs to none, and is forgotten.
    void begin()
    {
        m_entries.clear();
        m_command = {};
    }
    //! What was collected since the command began.
    QList<JournalEntry> take() { return std::exchange(m_entries, {}); }

private:
    void collect(const QJsonObject &note);
    void keep(const QJsonObject &note);

    QList<JournalEntry> m_entries;
    QJsonObject m_command; //!< the one under way, unless it is kept
    Subscription m_subscription;
};

} // namespace till

#endif // TILL_REGISTER_JOURNAL_H
