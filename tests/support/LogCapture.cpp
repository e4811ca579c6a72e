#include "tests/support/LogCapture.h"

#include <log4qt/loggingevent.h>
#include <log4qt/logmanager.h>

#include <utility>

class LogListener::Appender : public Log4Qt::AppenderSkeleton
{
public:
    explicit Appender(Told told)
        : m_told(std::move(told))
    {
    }

    bool requiresLayout() const override { return false; }

protected:
    void append(const Log4Qt::LoggingEvent &event) override
    {
        m_told(event.level().toString() + QLatin1Char(' ') + event.message());
    }

private:
    const Told m_told;
};

LogListener::LogListener(Told told)
    : m_logger(Log4Qt::LogManager::logger(QStringLiteral("packaging")))
    , m_appender(new Appender(std::move(told)))
{
    m_logger->addAppender(m_appender);
}

LogListener::~LogListener()
{
    m_logger->removeAppender(m_appender);
}
