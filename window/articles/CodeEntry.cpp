#include "window/articles/CodeEntry.h"

#include "till/goods/Money.h"

#include <QtCore/QRegularExpression>

namespace till {

CodeEntry CodeEntry::read(const QString &text)
{
    static const QRegularExpression times(QStringLiteral("^\\s*([0-9.,]+)\\s*[*xX×хХ]\\s*(.*)$"));
    const QRegularExpressionMatch match = times.match(text);
    if (match.hasMatch()) {
        if (const auto count = parseQuantity(match.captured(1)))
            return {count, match.captured(2).trimmed()};
    }
    return {{}, text.trimmed()};
}

std::optional<double> CodeEntry::countAlone(const QString &text)
{
    const CodeEntry entry = read(text);
    if (!entry.count)
        return parseQuantity(entry.code);
    return entry.code.isEmpty() ? entry.count : std::nullopt;
}

} // namespace till
