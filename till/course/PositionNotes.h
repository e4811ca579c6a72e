#ifndef TILL_COURSE_POSITIONNOTES_H
#define TILL_COURSE_POSITIONNOTES_H

#include "till/course/Notes.h"
#include "till/receipt/Receipt.h"

#include <QtCore/QHash>

namespace till {

//! Notes the positions of the receipt in hand, for those who want states.
class PositionNotes
{
public:
    //! \a notes must outlive this object.
    explicit PositionNotes(Notes &notes);

    //! Notes \a position as it stands.
    void tell(const Position &position);
    //! Notes those positions of \a receipt that are not as they were noted last, or never were.
    void tellChanged(const Receipt &receipt);
    //! From now on no position counts as noted: another receipt is in hand.
    void forget() { m_told.clear(); }

private:
    Notes &m_notes;
    QHash<int, LineRecord> m_told; //!< by position number
};

} // namespace till

#endif // TILL_COURSE_POSITIONNOTES_H
