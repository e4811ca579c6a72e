#ifndef WINDOW_COURSE_COURSEWORDS_H
#define WINDOW_COURSE_COURSEWORDS_H

#include "till/language/Translator.h"
#include "window/course/CourseNode.h"

namespace till {

//! What happened, in one line: the command, the event, what was said or stored.
QString whatHappened(const CourseNode &node, const Translator &translator);

//! What came of it: how a command, an action or a trigger ended, what was answered; of an event
//! which taras it filled. Empty where there is nothing to say, or nothing yet.
QString whatCameOfIt(const CourseNode &node, const Translator &translator);

//! Whether it did not end well.
bool endedBadly(const CourseNode &node);

} // namespace till

#endif // WINDOW_COURSE_COURSEWORDS_H
