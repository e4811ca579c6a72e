#ifndef TESTS_PLUGIN_RECORDINGHOST_H
#define TESTS_PLUGIN_RECORDINGHOST_H

#include "tests/support/FakeHost.h"
#include "tests/support/InstalledServices.h"
#include "tests/support/TestPlugin.h"

#include <algorithm>
#include <utility>

//! A notifier that works, and notes what is asked of it as "subscribe 19 21", "enable", "disable".
class RecordingNotifier : public ActivityNotifier
{
public:
    explicit RecordingNotifier(QStringList &journal)
        : m_journal(journal)
    {
    }

    void subscribe(BaseActivityListener *newListener, const QSet<int> &codes) override
    {
        QList<int> sorted(codes.cbegin(), codes.cend());
        std::sort(sorted.begin(), sorted.end());
        QString line = "subscribe";
        for (const int code : std::as_const(sorted))
            line += QString(" %1").arg(code);
        note(line, newListener);
        ActivityNotifier::subscribe(newListener, codes);
    }

    void disableListener(BaseActivityListener *disabled) override
    {
        note("disable", disabled);
        ActivityNotifier::disableListener(disabled);
    }

    void enableListener(BaseActivityListener *enabled) override
    {
        note("enable", enabled);
        ActivityNotifier::enableListener(enabled);
    }

    BaseActivityListener *listener = nullptr; //!< whom the last call was about

private:
    void note(const QString &line, BaseActivityListener *about)
    {
        m_journal << line;
        listener = about;
    }

    QStringList &m_journal;
};

//! A configuration that notes what it is asked.
class RecordingConfig : public Config
{
public:
    explicit RecordingConfig(QStringList &journal)
        : m_journal(journal)
    {
    }

    bool getBool(const QString &key, bool defaultValue) const override
    {
        m_journal << QString("read %1 or %2").arg(key, defaultValue ? "true" : "false");
        return Config::getBool(key, defaultValue);
    }

private:
    QStringList &m_journal;
};

//! Text of a trigger: context, type, order, result, priority.
inline QString rowOf(const ActionTrigger &trigger)
{
    return QString("%1 %2 %3 %4 %5")
        .arg(trigger.getContext())
        .arg(trigger.getActionType())
        .arg(trigger.getOrder())
        .arg(trigger.getResult())
        .arg(trigger.getPriority());
}

#endif // TESTS_PLUGIN_RECORDINGHOST_H
