#include "till/receipt/ReceiptRecord.h"

namespace till {

QString wordOf(ReceiptState state)
{
    static const QStringList words{"open", "subtotal", "closed", "cancelled"};
    return words.value(static_cast<int>(state));
}

ReceiptUpdate wholeOf(const ReceiptRecord &record)
{
    ReceiptUpdate update{record, true, {}, {}};
    for (qsizetype place = 0; place < record.lines.size(); ++place)
        update.lines.insert(update.lines.cend(), place, record.lines[place]);
    for (auto plugin = record.pluginData.cbegin(); plugin != record.pluginData.cend(); ++plugin) {
        for (auto entry = plugin->cbegin(); entry != plugin->cend(); ++entry)
            update.values.append({plugin.key(), entry.key(), entry.value(), {}});
    }
    return update;
}

} // namespace till
