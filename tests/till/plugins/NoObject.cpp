#include <QtCore/QObject>
#include <QtCore/qplugin.h>

// An entry point that makes no object.
#undef Q_PLUGIN_INSTANCE
#define Q_PLUGIN_INSTANCE(Class)                                                                   \
    {                                                                                              \
        return nullptr;                                                                            \
    }

class NoObject : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "PackagingControl")
};

#include "NoObject.moc"
