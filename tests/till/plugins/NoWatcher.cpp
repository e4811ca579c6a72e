#include "host/BaseActivityListener.h"
#include "host/BasicPlugin.h"

//! A plugin of the host's that cannot be told of a document.
class NoWatcher : public BaseActivityListener, public BasicPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "PackagingControl")
    Q_INTERFACES(BasicPlugin)

public:
    NoWatcher()
        : BaseActivityListener(nullptr)
    {
    }
    void handleEvent(const Event &event) override { Q_UNUSED(event) }
};

#include "NoWatcher.moc"
