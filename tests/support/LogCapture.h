#ifndef TESTS_SUPPORT_LOGCAPTURE_H
#define TESTS_SUPPORT_LOGCAPTURE_H

#include <log4qt/appenderskeleton.h>
#include <log4qt/logger.h>

#include <QtCore/QStringList>

#include <functional>

//! Hears what the plugin logs while it lives, each line as "INFO text" or "ERROR text".
class LogListener
{
public:
    using Told = std::function<void(const QString &line)>;

    explicit LogListener(Told told);
    ~LogListener();
    Q_DISABLE_COPY_MOVE(LogListener)

private:
    class Appender;
    Log4Qt::Logger *m_logger;
    Log4Qt::AppenderSharedPtr m_appender;
};

//! Keeps what the plugin logs while it lives.
class LogCapture
{
public:
    QStringList lines() const { return m_lines; }
    void clear() { m_lines.clear(); }

private:
    QStringList m_lines;
    LogListener m_listener{[this](const QString &line) { m_lines << line; }};
};

#endif // TESTS_SUPPORT_LOGCAPTURE_H
