#include "till/database/Table.h"

#include "till/database/Database.h"

#include <QtCore/QCryptographicHash>

#include <algorithm>
#include <bit>

namespace till {

namespace {

void addNumber(QCryptographicHash &hash, char kind, quint64 number)
{
    char bytes[1 + sizeof number] = {kind};
    for (size_t i = 0; i < sizeof number; ++i)
        bytes[1 + i] = static_cast<char>(number >> (8 * i));
    hash.addData(QByteArrayView(bytes, sizeof bytes));
}

void addBytes(QCryptographicHash &hash, char kind, const QByteArray &bytes)
{
    addNumber(hash, kind, static_cast<quint64>(bytes.size()));
    hash.addData(bytes);
}

void addValue(QCryptographicHash &hash, const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Double: // a database does not keep the sign of zero
        return addNumber(hash, 'r', std::bit_cast<quint64>(value.toDouble() + 0.0));
    case QMetaType::QString:
        return addBytes(hash, 't', value.toString().toUtf8());
    case QMetaType::QByteArray:
        return addBytes(hash, 'b', value.toByteArray());
    default:
        return addNumber(hash, 'i', static_cast<quint64>(value.toLongLong()));
    }
}

QString joined(const QStringList &texts)
{
    return texts.join(QStringLiteral(", "));
}

QStringList assignments(const QStringList &columns)
{
    QStringList texts;
    for (const QString &column : columns)
        texts.append(QStringLiteral("%1 = excluded.%1").arg(column));
    return texts;
}

} // namespace

Table::Table(const char *name, int keys, const QStringList &columns)
    : m_name(name)
    , m_columns(columns.size())
{
    const QString table = QString::fromLatin1(m_name);
    const QStringList all = columns + QStringList{QStringLiteral("digest")};
    const QStringList marks(all.size(), QStringLiteral("?"));
    m_select = QStringLiteral("SELECT %1 FROM %2 ").arg(joined(all), table);
    m_write = QStringLiteral("INSERT INTO %1 (%2) VALUES (%3) ON CONFLICT DO UPDATE SET %4")
                  .arg(table, joined(all), joined(marks), joined(assignments(all.mid(keys))));
}

QByteArray Table::digest(const QVariantList &values) const
{
    QCryptographicHash hash(QCryptographicHash::Blake2b_160);
    addBytes(hash, 't', m_name);
    for (const QVariant &value : values)
        addValue(hash, value);
    return hash.result();
}

Result<> Table::write(Database &database, const QVariantList &values,
                      const QByteArray &digest) const
{
    return database.run(m_write, values + QVariantList{digest});
}

Table::Row Table::row(const QSqlQuery &rows) const
{
    Row row;
    row.values.reserve(m_columns);
    for (int column = 0; column < m_columns; ++column)
        row.values.append(rows.value(column));
    row.digest = rows.value(static_cast<int>(m_columns)).toByteArray();
    row.isWhole = row.digest == digest(row.values);
    return row;
}

void RowsDigest::toggle(const QByteArray &row)
{
    m_bytes.resize(std::max(m_bytes.size(), row.size()), '\0');
    for (qsizetype i = 0; i < row.size(); ++i)
        m_bytes[i] = static_cast<char>(m_bytes[i] ^ row[i]);
}

QString storable(const QString &text)
{
    if (text.isNull())
        return QStringLiteral("");
    // A database that is given UTF-16 takes a first U+FEFF for a mark of the order of bytes, and
    // gives U+FFFD for halves of pairs and for the two that are no characters.
    const auto isOdd = [](QChar c) { return c.isSurrogate() || c.unicode() >= 0xFEFF; };
    if (std::none_of(text.cbegin(), text.cend(), isOdd))
        return text;
    QString kept = QString::fromUtf8(text.toUtf8()); // halves of pairs go
    kept.replace(QChar(0xFFFE), QChar(QChar::ReplacementCharacter));
    kept.replace(QChar(0xFFFF), QChar(QChar::ReplacementCharacter));
    const auto first =
        std::find_if(kept.cbegin(), kept.cend(), [](QChar c) { return c != QChar::ByteOrderMark; });
    kept.remove(0, first - kept.cbegin());
    return kept.isNull() ? QStringLiteral("") : kept;
}

QByteArray storable(const QByteArray &bytes)
{
    return bytes.isNull() ? QByteArray("") : bytes;
}

} // namespace till
