#ifndef TESTS_SUPPORT_WARNINGCAPTURE_H
#define TESTS_SUPPORT_WARNINGCAPTURE_H

#include <QtCore/QStringList>
#include <QtCore/qlogging.h>

//! Keeps Qt's log lines, instead of printing them, while it lives. One at a time.
class WarningCapture
{
public:
    WarningCapture()
    {
        kept().clear();
        m_previous = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &line) { kept() << line; });
    }
    ~WarningCapture() { qInstallMessageHandler(m_previous); }
    Q_DISABLE_COPY_MOVE(WarningCapture)

    QStringList lines() const { return kept(); }

private:
    static QStringList &kept()
    {
        static QStringList lines;
        return lines;
    }
    QtMessageHandler m_previous;
};

#endif // TESTS_SUPPORT_WARNINGCAPTURE_H
