#ifndef LOG4QT_APPENDER_H
#define LOG4QT_APPENDER_H

#include "log4qt/log4qt.h"

#include <QtCore/QObject>
#include <QtCore/QSharedPointer>

namespace Log4Qt {

class LoggingEvent;

//! Receives logging events.
class LOG4QT_EXPORT Appender : public QObject
{
    Q_OBJECT

public:
    explicit Appender(QObject *parent = nullptr);
    ~Appender() override;

    //! Whether the appender needs a layout. There are none here; subclasses answer false.
    virtual bool requiresLayout() const = 0;
    virtual void doAppend(const LoggingEvent &event) = 0;
};

using AppenderSharedPtr = QSharedPointer<Appender>;

} // namespace Log4Qt

#endif // LOG4QT_APPENDER_H
