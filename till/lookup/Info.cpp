#include "till/lookup/Info.h"

#include "host/ActivityNotifier.h"
#include "host/BasicPlugin.h"

#include <QtCore/QJsonDocument>

#include <algorithm>

namespace till {

namespace {

//! Puts a service in the place of the process's while it lives; then the one before is back.
template <typename Service>
class InPlace
{
public:
    explicit InPlace(Service &service)
        : m_before(Singleton<Service>::instance)
    {
        Singleton<Service>::instance = &service;
    }
    ~InPlace() { Singleton<Service>::instance = m_before; }
    Q_DISABLE_COPY_MOVE(InPlace)

private:
    Service *const m_before;
};

//! Notes what is subscribed to.
class SubscriptionRecorder : public ActivityNotifier
{
public:
    void subscribe(BaseActivityListener *listener, const QSet<int> &codes) override
    {
        m_codes.unite(codes);
        ActivityNotifier::subscribe(listener, codes);
    }

    QList<int> codes() const
    {
        QList<int> sorted = m_codes.values();
        std::sort(sorted.begin(), sorted.end());
        return sorted;
    }

private:
    QSet<int> m_codes;
};

QString describe(const ActionTrigger &trigger)
{
    return QString("  %1 action %2, context %3, result %4, priority %5\n")
        .arg(trigger.getOrder() == ActionTrigger::Before ? "before" : "after ")
        .arg(trigger.getActionType(), 3)
        .arg(trigger.getContext())
        .arg(trigger.getResult())
        .arg(trigger.getPriority());
}

QString describe(const LoadedPlugin &loaded, const QList<int> &codes)
{
    QString text =
        "metadata: " + QJsonDocument(loaded.metadata.record).toJson(QJsonDocument::Compact)
        + "\nobject:   " + loaded.object->objectName() + "\ntriggers:\n";
    const auto triggers = loaded.plugin->triggers();
    for (const ActionTrigger &trigger : triggers)
        text += describe(trigger);
    text += "events:  ";
    for (const int code : codes)
        text += ' ' + QString::number(code);
    return text + '\n';
}

} // namespace

Result<QString> describePlugin(const Setup &setup)
{
    Config settings;
    if (const Result<> read = readSettings(setup, settings); !read)
        return read.error();
    PluginLoader loader;
    const auto loaded = loader.load(setup.plugin);
    if (!loaded)
        return loaded.error().fault();
    SubscriptionRecorder notifier;
    const InPlace<Config> config(settings);
    const InPlace<ActivityNotifier> activity(notifier);
    const auto initialised = loaded->initialise();
    const QString text = "plugin:   " + setup.plugin + '\n' + describe(*loaded, notifier.codes());
    loader.unload(); // as long as there is something to unsubscribe from
    if (!initialised)
        return initialised.error().fault();
    return text;
}

} // namespace till
