#ifndef CONTRACT_CHECK_H
#define CONTRACT_CHECK_H

#include <QtCore/QList>
#include <QtCore/QString>

#include <initializer_list>

namespace contract {

//! How a check ended.
struct Finding
{
    enum Kind : char {
        Held = 'h',
        Broken = 'b',
        Unchecked = 'u', //!< the host offers no way to see it here
    };

    Kind kind = Held;
    QString text; //!< what was seen instead, or why nothing can be seen; empty when held
};

Finding held();
Finding broken(const QString &seen);
Finding unchecked(const QString &why);

//! One thing that has to be so, and what is said when it is not.
struct Row
{
    bool holds;
    QString otherwise;
};

//! Broken with everything that is not as it has to be, or held.
Finding judge(std::initializer_list<Row> rows);

//! One promise of the host's.
struct Check
{
    const char *name;   //!< subject and promise, with a dot between them
    const char *needed; //!< what the plugin needs
    const char *harm;   //!< what goes wrong on a receipt without it
    Finding (*run)();   //!< may crash: runs in a process of its own
};

using Checks = QList<Check>;

} // namespace contract

#endif // CONTRACT_CHECK_H
