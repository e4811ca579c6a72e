#ifndef TESTS_TILL_STORAGE_PLUGINTYPES_H
#define TESTS_TILL_STORAGE_PLUGINTYPES_H

#include <QtCore/QDataStream>
#include <QtCore/QMetaType>

// Types that only a plugin knows.

//! A plugin's own type that can be written.
struct Streamed
{
    int number = 0;

    bool operator==(const Streamed &other) const = default;
};

inline QDataStream &operator<<(QDataStream &stream, const Streamed &value)
{
    return stream << value.number;
}

inline QDataStream &operator>>(QDataStream &stream, Streamed &value)
{
    return stream >> value.number;
}

//! One that cannot.
struct Mute
{
    int number = 0;
};

//! One that writes more than it reads.
struct Lopsided
{
    int number = 0;
};

inline QDataStream &operator<<(QDataStream &stream, const Lopsided &value)
{
    return stream << value.number << value.number;
}

inline QDataStream &operator>>(QDataStream &stream, Lopsided &value)
{
    return stream >> value.number;
}

Q_DECLARE_METATYPE(Streamed)
Q_DECLARE_METATYPE(Mute)
Q_DECLARE_METATYPE(Lopsided)

#endif // TESTS_TILL_STORAGE_PLUGINTYPES_H
