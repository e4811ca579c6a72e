#include "host/BaseActivityListener.h"
#include "host/BasicPlugin.h"
#include "host/DocumentWatcher.h"

//! A plugin of the host's that has every part, and says that it cannot begin.
class NotReady : public BaseActivityListener, public BasicPlugin, public DocumentWatcher
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "PackagingControl")
    Q_INTERFACES(BasicPlugin)

public:
    NotReady()
        : BaseActivityListener(nullptr)
    {
    }
    void handleEvent(const Event &event) override { Q_UNUSED(event) }
    bool init() override { return false; }
    void deinit() override { qFatal("deinit() without init()"); }
};

#include "NotReady.moc"
