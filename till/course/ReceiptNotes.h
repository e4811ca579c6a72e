#ifndef TILL_COURSE_RECEIPTNOTES_H
#define TILL_COURSE_RECEIPTNOTES_H

#include "till/course/Notes.h"
#include "till/receipt/Receipt.h"

namespace till {

//! A position, whose price is \a sum, as notes have it.
QJsonObject describe(const LineRecord &line, Kopecks sum);

//! Notes how the current receipt stands; but for a take-up, only for those who want states.
class ReceiptNotes
{
public:
    //! \a notes must outlive this object.
    explicit ReceiptNotes(Notes &notes);

    //! Notes that \a receipt, or none when it is null, is current from now on, and all of it:
    //! whoever follows the notes forgets the receipt before and begins with what stands here.
    void tellTakenUp(const Receipt *receipt);
    //! Notes \a position as it stands.
    void tell(const Position &position);
    //! Notes what became of a value that a plugin stores.
    void tell(const ValueChange &change);
    //! Notes the receipt as a whole.
    void tellReceipt(const Receipt &receipt);

private:
    Notes &m_notes;
};

} // namespace till

#endif // TILL_COURSE_RECEIPTNOTES_H
