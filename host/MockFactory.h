#ifndef HOST_MOCKFACTORY_H
#define HOST_MOCKFACTORY_H

#include <QtCore/QSharedPointer>

/*!
 * Makes host objects that are created for each use. While `mocked` is set, every `create()` hands
 * out that object instead of a new one; the factory then shares its ownership. One thread only.
 */
template <class T>
struct MockFactory
{
    //! The installed substitute, or null. For each type the host library has one.
    static QSharedPointer<T> mocked;

    //! The substitute when there is one, else a new `T`. Never null.
    static QSharedPointer<T> create() { return mocked ? mocked : QSharedPointer<T>(new T); }
};

#endif // HOST_MOCKFACTORY_H
