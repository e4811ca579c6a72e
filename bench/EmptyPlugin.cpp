#include <QtCore/QObject>

//! The least that Qt takes for a plugin.
class EmptyPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "EmptyPlugin")
};

#include "EmptyPlugin.moc"
