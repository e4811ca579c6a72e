#ifndef TESTS_SUPPORT_QTLINES_H
#define TESTS_SUPPORT_QTLINES_H

#include <QtCore/QStringList>
#include <QtCore/qlogging.h>

//! Keeps what Qt would print, in the program's message pattern, while it lives. One at a time.
class QtLines
{
public:
    QtLines()
    {
        kept().clear();
        m_previous = qInstallMessageHandler(
            [](QtMsgType type, const QMessageLogContext &context, const QString &message) {
                kept() << qFormatLogMessage(type, context, message);
            });
    }
    ~QtLines() { qInstallMessageHandler(m_previous); }
    Q_DISABLE_COPY_MOVE(QtLines)

    QStringList operator()() const { return kept(); }

private:
    static QStringList &kept()
    {
        static QStringList lines;
        return lines;
    }
    QtMessageHandler m_previous;
};

#endif // TESTS_SUPPORT_QTLINES_H
