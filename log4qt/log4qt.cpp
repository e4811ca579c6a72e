#include "log4qt/appenderskeleton.h"
#include "log4qt/logger.h"
#include "log4qt/loggingevent.h"
#include "log4qt/logmanager.h"

#include <QtCore/QMap>

#include <memory>

namespace Log4Qt {

Level::Level(Value value)
    : m_value(value)
{
}

int Level::toInt() const
{
    return m_value;
}

QString Level::toString() const
{
    return m_value == ERROR_INT ? QStringLiteral("ERROR") : QStringLiteral("INFO");
}

LoggingEvent::LoggingEvent(const Logger *logger, Level level, const QString &message)
    : m_logger(logger)
    , m_level(level)
    , m_message(message)
{
}

const Logger *LoggingEvent::logger() const
{
    return m_logger;
}

Level LoggingEvent::level() const
{
    return m_level;
}

QString LoggingEvent::message() const
{
    return m_message;
}

Appender::Appender(QObject *parent)
    : QObject(parent)
{
}

Appender::~Appender() = default;

AppenderSkeleton::AppenderSkeleton(QObject *parent)
    : Appender(parent)
{
}

AppenderSkeleton::~AppenderSkeleton() = default;

void AppenderSkeleton::doAppend(const LoggingEvent &event)
{
    append(event);
}

Logger::Logger(const QString &name)
    : m_name(name.toUtf8())
    , m_category(m_name.constData())
{
}

QString Logger::name() const
{
    return QString::fromUtf8(m_name);
}

bool Logger::isEnabledFor(Level level) const
{
    return !m_appenders.isEmpty() || isPrinted(level);
}

void Logger::info(const QString &message)
{
    append(Level::INFO_INT, message);
    if (isPrinted(Level::INFO_INT))
        print(QtInfoMsg, message);
}

void Logger::error(const QString &message)
{
    append(Level::ERROR_INT, message);
    if (isPrinted(Level::ERROR_INT))
        print(QtCriticalMsg, message);
}

void Logger::addAppender(const AppenderSharedPtr &appender)
{
    if (appender && !m_appenders.contains(appender))
        m_appenders.append(appender);
}

void Logger::removeAppender(const AppenderSharedPtr &appender)
{
    m_appenders.removeAll(appender);
}

void Logger::append(Level level, const QString &message) const
{
    if (m_appenders.isEmpty())
        return;
    const LoggingEvent event(this, level, message);
    const auto appenders = m_appenders; // an appender may add or remove appenders
    for (const auto &appender : appenders)
        appender->doAppend(event);
}

bool Logger::isPrinted(Level level) const
{
    return level == Level::ERROR_INT ? m_category.isCriticalEnabled() : m_category.isInfoEnabled();
}

// Not through QDebug, which prints in its destructor: out of memory there, the process would end.
void Logger::print(QtMsgType type, const QString &message) const
{
    qt_message_output(type, QMessageLogContext(nullptr, 0, nullptr, m_category.categoryName()),
                      message);
}

Logger *LogManager::logger(const QString &name)
{
    // Never destroyed: what is destroyed at the process's end may still log.
    static auto &loggers = *new QMap<QString, std::shared_ptr<Logger>>;
    std::shared_ptr<Logger> &logger = loggers[name];
    if (!logger)
        logger = std::make_shared<Logger>(name);
    return logger.get();
}

} // namespace Log4Qt

#include "log4qt/moc_appender.cpp"
#include "log4qt/moc_appenderskeleton.cpp"
