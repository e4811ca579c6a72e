#ifndef TESTS_SUPPORT_LOGCAPTURE_H
#define TESTS_SUPPORT_LOGCAPTURE_H

#include <log4qt/appenderskeleton.h>
#include <log4qt/logger.h>

#include <QtCore/QStringList>

//! Keeps what a logger logs while it lives, each line as "INFO text" or "ERROR text".
class LogCapture
{
public:
    explicit LogCapture(const QString &loggerName = QStringLiteral("packaging"));
    ~LogCapture();
    Q_DISABLE_COPY_MOVE(LogCapture)

    QStringList lines() const;
    void clear();

private:
    class Appender;
    Log4Qt::Logger *m_logger;
    QSharedPointer<QStringList> m_lines;
    Log4Qt::AppenderSharedPtr m_appender;
};

#endif // TESTS_SUPPORT_LOGCAPTURE_H
