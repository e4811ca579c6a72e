#ifndef HOST_BASICPLUGIN_H
#define HOST_BASICPLUGIN_H

#include "host/ActionTrigger.h"

#include <shopline/Extension.h>

using BasicPlugin = shopline::Extension;

// For moc, which reads text and knows no aliases; the compiler has the shop's own declaration.
#if defined(Q_MOC_RUN)
Q_DECLARE_INTERFACE(BasicPlugin, "org.shopline.Extension/3")
#endif

#endif // HOST_BASICPLUGIN_H
