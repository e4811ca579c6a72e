#include "tests/support/LogCapture.h"

#include <log4qt/loggingevent.h>
#include <log4qt/logmanager.h>

#include <utility>

class LogCapture::Appender : public Log4Qt::AppenderSkeleton
{
public:
    explicit Appender(QSharedPointer<QStringList> lines)
        : m_lines(std::move(lines))
    {
    }

    bool requiresLayout() const override { return false; }

protected:
    void append(const Log4Qt::LoggingEvent &event) override
    {
        m_lines->append(event.level().toString() + QLatin1Char(' ') + event.message());
    }

private:
    QSharedPointer<QStringList> m_lines;
};

LogCapture::LogCapture(const QString &loggerName)
    : m_logger(Log4Qt::LogManager::logger(loggerName))
    , m_lines(QSharedPointer<QStringList>::create())
    , m_appender(new Appender(m_lines))
{
    m_logger->addAppender(m_appender);
}

LogCapture::~LogCapture()
{
    m_logger->removeAppender(m_appender);
}

QStringList LogCapture::lines() const
{
    return *m_lines;
}

void LogCapture::clear()
{
    m_lines->clear();
}
