#ifndef WINDOW_COURSE_TARACHANGES_H
#define WINDOW_COURSE_TARACHANGES_H

#include "till/course/RebuiltReceipt.h"
#include "till/language/Message.h"

#include <QtCore/QJsonObject>

namespace till {

//! Whether \a note tells of the records of tara, how full each is.
bool isOfTara(const QJsonObject &note);

/*!
 * What \a note, of plugin data, says of tara and goods that is new, record by record: how full a
 * tara was and is, which taras goods are in. \a before is the receipt as the notes before have it.
 * Nothing for data that are not the tara plugin's, and for what is malformed.
 */
QList<Message> changesIn(const QJsonObject &note, const RebuiltReceipt &before);

} // namespace till

#endif // WINDOW_COURSE_TARACHANGES_H
