#include "till/goods/CatalogueHeader.h"

#include <QtCore/QStringList>

#include <algorithm>

namespace till {

namespace {

//! What a column may be called, in the form that `canonical` gives.
struct ColumnNames
{
    CatalogueHeader::Column column;
    QStringList names; //!< the one for messages first
};

const QList<ColumnNames> &columns()
{
    using enum CatalogueHeader::Column;
    static const QList<ColumnNames> all{
        {Code, {"code", "код"}},
        {Name, {"name", "наименование", "название"}},
        {Price, {"price", "цена"}},
        {TaraMode, {"tara mode", "режим тары"}},
        {TaraCapacity, {"tara capacity", "емкость тары"}},
        {Pack, {"pack", "упаковка"}},
        {Unit, {"unit", "единица"}},
    };
    return all;
}

QString canonical(const QByteArray &header)
{
    return QString::fromUtf8(header)
        .toLower()
        .replace(QLatin1Char('_'), QLatin1Char(' '))
        .replace(QChar(u'ё'), QChar(u'е'))
        .simplified();
}

} // namespace

void refuseRow(int line, const QString &reason)
{
    throw CatalogueRefusal{reason, line};
}

QString quoted(const QString &text)
{
    constexpr qsizetype longest = 60;
    const bool isLong = text.size() > longest;
    return QLatin1Char('"') + (isLong ? text.left(longest - 1) + QChar(u'…') : text)
           + QLatin1Char('"');
}

std::optional<CatalogueHeader::Column> CatalogueHeader::columnCalled(const QByteArray &header)
{
    const QString name = canonical(header);
    const auto found = std::find_if(columns().cbegin(), columns().cend(),
                                    [&](const auto &c) { return c.names.contains(name); });
    return found == columns().cend() ? std::nullopt : std::optional(found->column);
}

CatalogueHeader::CatalogueHeader(const CsvRow &row)
    : m_names(row.fields)
{
    checkUtf8(row);
    for (qsizetype index = 0; index < m_names.size(); ++index) {
        if (const auto column = columnCalled(m_names[index]))
            place(*column, index, row.line);
    }
    checkComplete(row.line);
}

void CatalogueHeader::refuseField(int line, qsizetype index, const QString &reason) const
{
    refuseRow(line, nameOf(index) + QStringLiteral(": ") + reason);
}

void CatalogueHeader::checkUtf8(const CsvRow &row) const
{
    for (qsizetype index = 0; index < row.fields.size(); ++index) {
        if (!row.fields[index].isValidUtf8())
            refuseField(row.line, index, QStringLiteral("the text is not UTF-8"));
    }
}

QString CatalogueHeader::nameOf(qsizetype index) const
{
    const QByteArray name = m_names.value(index);
    const QString place = QStringLiteral("column %1").arg(index + 1);
    return name.isEmpty() || !name.isValidUtf8()
               ? place
               : place + QLatin1Char(' ') + quoted(QString::fromUtf8(name).simplified());
}

void CatalogueHeader::place(Column column, qsizetype index, int line)
{
    if (m_indexes.contains(column))
        refuseField(line, index, "says the same as " + nameOf(m_indexes[column]));
    m_indexes[column] = index;
}

void CatalogueHeader::checkComplete(int line) const
{
    QStringList missing;
    for (const ColumnNames &column : columns()) {
        if (!m_indexes.contains(column.column))
            missing.append(quoted(column.names.first()));
    }
    if (!missing.isEmpty())
        refuseRow(line, "missing in the header: " + missing.join(QStringLiteral(", ")));
}

} // namespace till
