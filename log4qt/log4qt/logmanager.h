#ifndef LOG4QT_LOGMANAGER_H
#define LOG4QT_LOGMANAGER_H

#include "log4qt/log4qt.h"
#include "log4qt/logger.h"

#include <QtCore/QString>

namespace Log4Qt {

//! Keeps the process's loggers by name.
class LOG4QT_EXPORT LogManager
{
public:
    //! The logger called \a name, made on first use. Never null; the same object for the same name.
    static Logger *logger(const QString &name);
};

} // namespace Log4Qt

#endif // LOG4QT_LOGMANAGER_H
