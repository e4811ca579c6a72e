#ifndef LOG4QT_APPENDERSKELETON_H
#define LOG4QT_APPENDERSKELETON_H

#include "log4qt/appender.h"

namespace Log4Qt {

//! Base of appenders: a subclass says in `append` where the line goes.
class LOG4QT_EXPORT AppenderSkeleton : public Appender
{
    Q_OBJECT

public:
    explicit AppenderSkeleton(QObject *parent = nullptr);
    ~AppenderSkeleton() override;

    void doAppend(const LoggingEvent &event) override;

protected:
    virtual void append(const LoggingEvent &event) = 0;
};

} // namespace Log4Qt

#endif // LOG4QT_APPENDERSKELETON_H
