#ifndef TESTS_LOG4QT_JOURNALAPPENDER_H
#define TESTS_LOG4QT_JOURNALAPPENDER_H

#include <log4qt/appenderskeleton.h>
#include <log4qt/logger.h>
#include <log4qt/loggingevent.h>
#include <log4qt/logmanager.h>

#include <QtCore/QStringList>

#include <functional>
#include <utility>

//! Writes "LABEL LOGGER LEVEL MESSAGE" into a journal for each line, then reacts.
class JournalAppender : public Log4Qt::AppenderSkeleton
{
public:
    JournalAppender(QString label, QStringList &journal)
        : m_label(std::move(label))
        , m_journal(journal)
    {
    }

    //! What the appender does on the next line; once only.
    void onNextLine(std::function<void()> reaction) { m_reaction = std::move(reaction); }

    bool requiresLayout() const override { return false; }

protected:
    void append(const Log4Qt::LoggingEvent &event) override
    {
        m_journal << QStringList{m_label, event.logger()->name(), event.level().toString(),
                                 event.message()}
                         .join(QLatin1Char(' '));
        if (const auto reaction = std::exchange(m_reaction, nullptr))
            reaction();
    }

private:
    QString m_label;
    QStringList &m_journal;
    std::function<void()> m_reaction;
};

#endif // TESTS_LOG4QT_JOURNALAPPENDER_H
