#ifndef TILL_RECORDER_RECEIPTCOURSE_H
#define TILL_RECORDER_RECEIPTCOURSE_H

#include "till/course/Notes.h"
#include "till/recorder/Recorder.h"

#include <QtCore/QList>

namespace till {

/*!
 * Keeps what is told of the receipt that was opened last, for a script that may be asked for later.
 * A return comes with what was done from the sale before it on: a plugin that lets go of a receipt
 * may still have what it had of the one before.
 */
class ReceiptCourse
{
public:
    //! \a start is the note of a till that was switched on already; empty for one that is off.
    ReceiptCourse(Notes &notes, QJsonObject start);
    Q_DISABLE_COPY_MOVE(ReceiptCourse)

    //! Whether no receipt was opened yet. One that was taken up was opened in another till.
    bool isEmpty() const { return m_notes.isEmpty(); }
    //! Tells \a recorder all of it, in order.
    void tell(Recorder &recorder) const;

private:
    void keep(const QJsonObject &note);

    QJsonObject m_start;
    QJsonObject m_command; //!< the one under way
    QList<QJsonObject> m_notes;
    Subscription m_subscription;
};

} // namespace till

#endif // TILL_RECORDER_RECEIPTCOURSE_H
