#ifndef TILL_RECEIPT_VALUECHANGE_H
#define TILL_RECEIPT_VALUECHANGE_H

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <optional>

namespace till {

//! From the element \a at on, \a removed elements of a list are taken out and \a added put in; more
//! are added than removed only at the end of the list.
struct ListChange
{
    qsizetype at = 0;
    qsizetype removed = 0;
    QVariantList added;

    bool operator==(const ListChange &other) const = default;
};

/*!
 * What became of a value that a plugin stores. Of a list that was one before, the parts that
 * changed, from the first to the last; each place counts in the list as the parts before have left
 * it. Else, and when there are no parts, \a value in place of what was there.
 */
struct ValueChange
{
    QString plugin;
    QString key;
    QVariant value;
    QList<ListChange> parts;
};

//! What makes \a after of \a before, under no plugin and key; nothing when it is surely the same.
std::optional<ValueChange> changeOf(const QVariant &before, const QVariant &after);

/*!
 * Whether both are the same to the last bit, as far as can be told at little cost: false where a
 * value is of another type than a plugin's data usually are. Stricter than the variants' own
 * comparison, to which values may be equal that differ in type, sign or being null.
 */
bool areSurelySame(const QVariant &left, const QVariant &right);

} // namespace till

#endif // TILL_RECEIPT_VALUECHANGE_H
