#ifndef TILL_REPORTS_COURSETEXT_H
#define TILL_REPORTS_COURSETEXT_H

#include "till/storage/Storage.h"
#include "till/view/TextPage.h"

#include <QtCore/QJsonObject>

namespace till {

class Translator;

//! What the note \a action tells of, in the words of the till's command that does the same.
QString actionWords(const QJsonObject &action);

/*!
 * What \a journal tells of a receipt's course, for people in one language: the actions, in the
 * words of the till's commands where one does the same; below each, as deep as they were nested,
 * the questions with their answers, the messages, and how it ended where it did not end well. Ends
 * with a line break unless there is nothing to tell.
 */
QString courseText(const QList<JournalEntry> &journal, const Translator &translator, Style style);

} // namespace till

#endif // TILL_REPORTS_COURSETEXT_H
