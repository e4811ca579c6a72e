#ifndef HOST_BASICPLUGIN_H
#define HOST_BASICPLUGIN_H

#include "host/ActionTrigger.h" // the plugin takes both from here

#include <vendor/BasicPlugin.h>

// The second base of the plugin: the SDK's own, with its virtual operations in its own order.
using BasicPlugin = vendor::BasicPlugin;

// moc reads text and knows no aliases: it has to see this line, with the SDK's identifier. The
// compiler must not, as the SDK has declared its interface itself.
#if defined(Q_MOC_RUN)
Q_DECLARE_INTERFACE(BasicPlugin, "vendor.BasicPlugin/1.0")
#endif

#endif // HOST_BASICPLUGIN_H
