#ifndef LOG4QT_LOGGER_H
#define LOG4QT_LOGGER_H

#include "log4qt/appender.h"
#include "log4qt/level.h"
#include "log4qt/log4qt.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QLoggingCategory>
#include <QtCore/QString>

namespace Log4Qt {

/*!
 * A named logger. What is logged goes to its appenders, always, and to the Qt logging category of
 * the same name, where `QT_LOGGING_RULES` and `QT_MESSAGE_PATTERN` decide what is printed.
 *
 * Loggers are made by `LogManager` and live until the process ends. One thread only.
 */
class LOG4QT_EXPORT Logger
{
public:
    explicit Logger(const QString &name);
    Q_DISABLE_COPY_MOVE(Logger)

    QString name() const;

    //! Whether anybody receives what is logged at \a level: an appender, or the category's output.
    bool isEnabledFor(Level level) const;

    //! Logs \a message at info level.
    void info(const QString &message);
    //! Logs \a format at info level, %1 to %9 replaced by the arguments, one after the other;
    //! not put together when nobody receives it.
    template <typename First, typename... More>
    void info(const QString &format, const First &first, const More &...more)
    {
        if (isEnabledFor(Level::INFO_INT))
            info(filled(format, first, more...));
    }

    //! Logs \a message at error level.
    void error(const QString &message);
    //! Logs \a format at error level, %1 to %9 replaced by the arguments, one after the other;
    //! not put together when nobody receives it.
    template <typename First, typename... More>
    void error(const QString &format, const First &first, const More &...more)
    {
        if (isEnabledFor(Level::ERROR_INT))
            error(filled(format, first, more...));
    }

    //! Adds \a appender behind those added before; the logger shares it. Adding it twice has no
    //! effect.
    void addAppender(const AppenderSharedPtr &appender);
    //! Removes \a appender; also while it is being called.
    void removeAppender(const AppenderSharedPtr &appender);

private:
    template <typename... Arguments>
    static QString filled(QString format, const Arguments &...arguments)
    {
        ((format = format.arg(arguments)), ...);
        return format;
    }
    bool isPrinted(Level level) const;
    void append(Level level, const QString &message) const;
    void print(QtMsgType type, const QString &message) const;

    QByteArray m_name;
    QLoggingCategory m_category;
    QList<AppenderSharedPtr> m_appenders;
};

} // namespace Log4Qt

#endif // LOG4QT_LOGGER_H
