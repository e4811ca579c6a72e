#include "contract/Check.h"

#include <QtCore/QStringList>

namespace contract {

Finding held()
{
    return {};
}

Finding broken(const QString &seen)
{
    return {Finding::Broken, seen};
}

Finding unchecked(const QString &why)
{
    return {Finding::Unchecked, why};
}

Finding judge(std::initializer_list<Row> rows)
{
    QStringList seen;
    for (const Row &row : rows) {
        if (!row.holds)
            seen.append(row.otherwise);
    }
    return seen.isEmpty() ? held() : broken(seen.join(QStringLiteral("; ")));
}

} // namespace contract
