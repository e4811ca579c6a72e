#ifndef TILL_REPORTS_COURSETEXT_H
#define TILL_REPORTS_COURSETEXT_H

#include "till/storage/Storage.h"
#include "till/view/TextPage.h"

namespace till {

class Translator;

/*!
 * What \a journal tells of a receipt's course, for people in one language: the actions, in the
 * words of the till's commands where one does the same; below each, as deep as they were nested,
 * the questions with their answers, the messages, and how it ended where it did not end well. Ends
 * with a line break unless there is nothing to tell.
 */
QString courseText(const QList<JournalEntry> &journal, const Translator &translator, Style style);

} // namespace till

#endif // TILL_REPORTS_COURSETEXT_H
