#include <QtCore/QObject>

//! Claims the interface, but is no plugin of the host's.
class NoPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "PackagingControl")
};

#include "NoPlugin.moc"
