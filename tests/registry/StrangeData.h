#ifndef TESTS_REGISTRY_STRANGEDATA_H
#define TESTS_REGISTRY_STRANGEDATA_H

#include <QtCore/QVariant>

//! A list in a list, \a depth times.
inline QVariant nestedLists(int depth)
{
    QVariant value = 1;
    for (int level = 0; level < depth; ++level)
        value = QVariantList{value};
    return value;
}

//! A map in a map, \a depth times, under a key that is read.
inline QVariant nestedMaps(int depth)
{
    QVariant value = 1;
    for (int level = 0; level < depth; ++level)
        value = QVariantMap{{"usedTara", value}};
    return value;
}

constexpr int absurdDepth = 2000;

#endif // TESTS_REGISTRY_STRANGEDATA_H
