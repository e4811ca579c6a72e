#include "till/storage/ValueWriter.h"

#include "till/database/Database.h"
#include "till/database/VariantBytes.h"
#include "till/schema/Schema.h"

#include <algorithm>

namespace till {

ValueWriter::ValueWriter(Database &database, qint64 receipt, const QString &plugin,
                         const QString &key, std::vector<StoredElement> &rows, RowsDigest &contents)
    : m_database(database)
    , m_receipt(receipt)
    , m_plugin(plugin)
    , m_key(key)
    , m_rows(rows)
    , m_contents(contents)
{
}

Result<> ValueWriter::apply(const ValueChange &change)
{
    if (change.parts.isEmpty())
        return replace(change.value);
    for (const ListChange &part : change.parts) {
        if (const Result<> replaced = replace(part); !replaced)
            return replaced;
    }
    return {};
}

Result<> ValueWriter::replace(const QVariant &value)
{
    const Result<> emptied = cut(0, static_cast<qsizetype>(m_rows.size()));
    const bool isList = value.typeId() == QMetaType::QVariantList;
    append(isList ? QVariant(QVariantList()) : value);
    if (isList)
        appendAll(value.toList());
    return emptied;
}

Result<> ValueWriter::replace(const ListChange &part)
{
    const qsizetype first = 1 + part.at; // behind the list's own row
    const qsizetype replaced = std::min(part.removed, part.added.size());
    for (qsizetype i = 0; i < replaced; ++i)
        m_pending[m_rows[static_cast<size_t>(first + i)].place] = part.added[i];
    const Result<> isCut = cut(first + replaced, part.removed - replaced);
    appendAll(part.added.mid(replaced));
    return isCut;
}

Result<> ValueWriter::cut(qsizetype from, qsizetype count)
{
    const auto begin = m_rows.begin() + from;
    Result<> removed;
    for (auto row = begin; removed && row != begin + count; ++row)
        removed = remove(*row);
    m_rows.erase(begin, begin + count);
    return removed;
}

Result<> ValueWriter::remove(const StoredElement &row)
{
    m_pending.remove(row.place);
    m_contents.toggle(row.digest);
    if (row.digest.isEmpty())
        return {};
    return m_database.run(
        QStringLiteral(
            "DELETE FROM pluginData WHERE receipt = ? AND plugin = ? AND key = ? AND place = ?"),
        {m_receipt, storable(m_plugin), storable(m_key), row.place});
}

void ValueWriter::appendAll(const QVariantList &elements)
{
    for (const QVariant &element : elements)
        append(element);
}

void ValueWriter::append(const QVariant &value)
{
    const qint64 place = m_rows.empty() ? 0 : m_rows.back().place + 1;
    m_rows.push_back({place, {}});
    m_pending.insert(place, value);
}

Result<> ValueWriter::write()
{
    for (auto value = m_pending.cbegin(); value != m_pending.cend(); ++value) {
        const auto row = std::lower_bound(
            m_rows.begin(), m_rows.end(), value.key(),
            [](const StoredElement &element, qint64 place) { return element.place < place; });
        if (const Result<> written = write(*row, value.value()); !written)
            return written;
    }
    return {};
}

Result<> ValueWriter::write(StoredElement &row, const QVariant &value)
{
    const auto bytes = VariantBytes::of(value);
    if (!bytes)
        return m_database.fault(QStringLiteral("the data of plugin \"%1\" under \"%2\" %3")
                                    .arg(m_plugin, m_key, bytes.error().reason));
    const QVariantList values{m_receipt, storable(m_plugin), storable(m_key),
                              row.place, bytes->bytes,       storable(bytes->types)};
    m_contents.toggle(row.digest);
    row.digest = pluginDataTable().digest(values);
    m_contents.toggle(row.digest);
    return pluginDataTable().write(m_database, values, row.digest);
}

} // namespace till
