#ifndef WINDOW_ARCHIVE_RECEIPTPAGE_H
#define WINDOW_ARCHIVE_RECEIPTPAGE_H

#include "till/archive/Archive.h"
#include "till/language/Translator.h"

namespace till {

//! What is wrong with a kept receipt that does not hold.
Message damageOf(const KeptReceipt &kept);

//! A kept receipt as the register shows it, the record of which must hold, what else is wrong with
//! it, and what \a journal tells of its course: as HTML in one language. Nothing that a receipt
//! holds is taken for markup.
QString receiptPage(const KeptReceipt &kept, const KeptJournal &journal,
                    const Translator &translator);

} // namespace till

#endif // WINDOW_ARCHIVE_RECEIPTPAGE_H
