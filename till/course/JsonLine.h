#ifndef TILL_COURSE_JSONLINE_H
#define TILL_COURSE_JSONLINE_H

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>

namespace till {

//! \a object in one line with its line break. Whatever would steer a terminal is escaped, which
//! JSON alone does not ask for.
QByteArray jsonLine(const QJsonObject &object);

} // namespace till

#endif // TILL_COURSE_JSONLINE_H
