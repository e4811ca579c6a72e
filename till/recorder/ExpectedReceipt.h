#ifndef TILL_RECORDER_EXPECTEDRECEIPT_H
#define TILL_RECORDER_EXPECTEDRECEIPT_H

#include "till/course/RebuiltReceipt.h"
#include "till/goods/Money.h"

#include <QtCore/QStringList>

namespace till {

//! The current receipt as notes tell it, as far as a script can ask for it.
struct ExpectedReceipt : RebuiltReceipt
{
    bool isThere = false;
    Kopecks total = 0;

    //! Follows a note, as `RebuiltReceipt` does.
    void read(const QJsonObject &note);

    qsizetype livePositions() const;
    bool isUnfinished() const;
};

/*!
 * What to expect of \a now where it differs from \a before, or all of it when that is null: the
 * words behind "expect", one text an expectation. A quantity about halfway between two thousandths
 * is left out: the last bit, which the order of the taras' identifiers decides, rounds it.
 */
QStringList expectationsOf(const ExpectedReceipt &now, const ExpectedReceipt *before = nullptr);

} // namespace till

#endif // TILL_RECORDER_EXPECTEDRECEIPT_H
