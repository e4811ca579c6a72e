#ifndef WINDOW_COURSE_QUOTEDTEXT_H
#define WINDOW_COURSE_QUOTEDTEXT_H

#include "till/language/Translator.h"

#include <QtCore/QJsonObject>

namespace till {

//! The "text" that \a note quotes of a question, a message or a reason, in the language of
//! \a translator where its "key" is known there; notes have it in Russian.
QString quotedText(const QJsonObject &note, const Translator &translator);

} // namespace till

#endif // WINDOW_COURSE_QUOTEDTEXT_H
