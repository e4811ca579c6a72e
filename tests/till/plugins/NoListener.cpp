#include "host/BasicPlugin.h"

//! A plugin of the host's to which no events can be delivered.
class NoListener : public QObject, public BasicPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "PackagingControl")
    Q_INTERFACES(BasicPlugin)
};

#include "NoListener.moc"
