#ifndef LOG4QT_LOGGINGEVENT_H
#define LOG4QT_LOGGINGEVENT_H

#include "log4qt/level.h"
#include "log4qt/log4qt.h"

#include <QtCore/QString>

namespace Log4Qt {

class Logger;

//! One line that was logged.
class LOG4QT_EXPORT LoggingEvent
{
public:
    LoggingEvent(const Logger *logger, Level level, const QString &message);

    //! The logger that it was logged through; never null.
    const Logger *logger() const;
    Level level() const;
    QString message() const;

private:
    const Logger *m_logger;
    Level m_level;
    QString m_message;
};

} // namespace Log4Qt

#endif // LOG4QT_LOGGINGEVENT_H
