#ifndef TESTS_TILL_STORAGE_UPDATEBETWEEN_H
#define TESTS_TILL_STORAGE_UPDATEBETWEEN_H

#include "till/receipt/ReceiptRecord.h"

namespace till {

//! What makes \a after of \a before, which has nothing that \a after lacks.
inline ReceiptUpdate updateBetween(const ReceiptRecord &before, const ReceiptRecord &after)
{
    ReceiptUpdate update{after, false, {}, {}};
    for (qsizetype place = 0; place < after.lines.size(); ++place) {
        if (place >= before.lines.size() || after.lines[place] != before.lines[place])
            update.lines.insert(place, after.lines[place]);
    }
    for (auto plugin = after.pluginData.cbegin(); plugin != after.pluginData.cend(); ++plugin) {
        const QVariantMap last = before.pluginData.value(plugin.key());
        for (auto entry = plugin->cbegin(); entry != plugin->cend(); ++entry) {
            if (auto change = changeOf(last.value(entry.key()), entry.value())) {
                change->plugin = plugin.key();
                change->key = entry.key();
                update.values.append(*change);
            }
        }
    }
    return update;
}

} // namespace till

#endif // TESTS_TILL_STORAGE_UPDATEBETWEEN_H
