// What every check includes and no host brings: compiled once.

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QMultiMap>
#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <functional>
#include <memory>
#include <type_traits>
