#ifndef HOST_HOSTGLOBAL_H
#define HOST_HOSTGLOBAL_H

#include <QtCore/qglobal.h>

//! Marks what the host library offers to plugins and host programs.
#if defined(HOST_LIBRARY)
#    define HOST_EXPORT Q_DECL_EXPORT
#else
#    define HOST_EXPORT Q_DECL_IMPORT
#endif

#endif // HOST_HOSTGLOBAL_H
