#ifndef LOG4QT_LEVEL_H
#define LOG4QT_LEVEL_H

#include "log4qt/log4qt.h"

#include <QtCore/QString>

namespace Log4Qt {

//! How serious a logging event is; the larger number is the more serious.
class LOG4QT_EXPORT Level
{
public:
    enum Value {
        INFO_INT = 128,
        ERROR_INT = 192,
    };

    Level(Value value);

    int toInt() const;
    //! "INFO" or "ERROR".
    QString toString() const;

    bool operator==(const Level &other) const { return m_value == other.m_value; }
    bool operator!=(const Level &other) const { return m_value != other.m_value; }

private:
    Value m_value;
};

} // namespace Log4Qt

#endif // LOG4QT_LEVEL_H
