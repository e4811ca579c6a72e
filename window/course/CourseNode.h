#ifndef WINDOW_COURSE_COURSENODE_H
#define WINDOW_COURSE_COURSENODE_H

#include "till/language/Message.h"

#include <QtCore/QJsonObject>
#include <QtCore/QList>

#include <memory>
#include <vector>

namespace till {

//! A thing that happened, and what happened inside of it.
struct CourseNode
{
    /*!
     * What was told of it, in order, each with the number of its "line". That is one note, or those
     * of its beginning and its end: the line of a script, the command and its outcome; an action
     * and its result; a question and its answer. A trigger is told when it is over: none until
     * then.
     */
    QList<QJsonObject> notes;
    QList<Message> changes; //!< what a note of plugin data says of tara and goods

    CourseNode *parent = nullptr;
    int row = 0;
    std::vector<std::unique_ptr<CourseNode>> children;

    //! Of the note that says what it is; empty for a trigger under way.
    QString kind() const { return main()["kind"].toString(); }
    //! That note: the first, but for a script's line before its command.
    QJsonObject main() const
    {
        const bool hasPlace = notes.size() > 1 && notes[0]["kind"].toString() == "script";
        return notes.value(hasPlace ? 1 : 0);
    }
    //! The last note, if it is of \a kind; otherwise an empty one.
    QJsonObject end(const char *kind) const
    {
        return !notes.isEmpty() && notes.constLast()["kind"].toString() == kind ? notes.constLast()
                                                                                : QJsonObject();
    }
};

} // namespace till

#endif // WINDOW_COURSE_COURSENODE_H
