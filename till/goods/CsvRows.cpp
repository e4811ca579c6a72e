#include "till/goods/CsvRows.h"

#include <csv.h>

#include <algorithm>
#include <utility>

namespace till {

namespace {

//! Feeds the parser line by line, which is how it comes to know where a row starts.
class CsvReader
{
public:
    explicit CsvReader(char separator)
    {
        csv_init(&m_parser, CSV_STRICT | CSV_STRICT_FINI);
        csv_set_delim(&m_parser, static_cast<unsigned char>(separator));
    }
    ~CsvReader() { csv_free(&m_parser); }
    Q_DISABLE_COPY_MOVE(CsvReader)

    Result<void, CsvFault> read(const QByteArray &text,
                                const std::function<bool(const CsvRow &)> &take)
    {
        for (qsizetype from = 0; from < text.size();) {
            const qsizetype length = lineLength(text, from);
            const auto parsed = parseLine(QByteArrayView(text).sliced(from, length));
            if (!parsed || !handOver(take))
                return parsed;
            from += length;
        }
        if (csv_fini(&m_parser, fieldEnded, rowEnded, this) != 0)
            return fault(QStringLiteral("the closing quote is missing"));
        handOver(take);
        return {};
    }

private:
    //! Length of the line that starts at \a from, with its end.
    static qsizetype lineLength(const QByteArray &text, qsizetype from)
    {
        const auto start = text.cbegin() + from;
        auto end = std::find_if(start, text.cend(), [](char c) { return c == '\r' || c == '\n'; });
        if (end != text.cend() && *end++ == '\r' && end != text.cend() && *end == '\n')
            ++end;
        return end - start;
    }

    Result<void, CsvFault> parseLine(QByteArrayView line)
    {
        ++m_line;
        if (!m_inRow)
            m_row.line = m_line;
        m_inRow = m_inRow || !line.trimmed().isEmpty();
        const auto size = static_cast<size_t>(line.size());
        if (csv_parse(&m_parser, line.data(), size, fieldEnded, rowEnded, this) == size)
            return {};
        return fault(csv_error(&m_parser) == CSV_EPARSE
                         ? QStringLiteral("a quote stands alone: put the field in quotes and "
                                          "double those within")
                         : QString::fromUtf8(csv_strerror(csv_error(&m_parser))));
    }

    //! Outside the parser, whose C does not expect exceptions. False when no more is wanted.
    bool handOver(const std::function<bool(const CsvRow &)> &take)
    {
        const bool isRow = std::exchange(m_isRowWhole, false);
        const bool isWanted = !isRow || isBlank(m_row) || take(m_row);
        if (isRow)
            m_row.fields.clear();
        return isWanted;
    }

    static bool isBlank(const CsvRow &row)
    {
        return std::all_of(row.fields.cbegin(), row.fields.cend(),
                           [](const auto &field) { return field.isEmpty(); });
    }

    CsvFault fault(const QString &reason) const { return {m_row, reason}; }

    static void fieldEnded(void *field, size_t size, void *reader)
    {
        auto &row = static_cast<CsvReader *>(reader)->m_row;
        row.fields.append(QByteArray(static_cast<const char *>(field), qsizetype(size)).trimmed());
    }

    //! A line ends one row at most.
    static void rowEnded(int, void *reader)
    {
        auto *self = static_cast<CsvReader *>(reader);
        self->m_isRowWhole = true;
        self->m_inRow = false;
    }

    csv_parser m_parser;
    CsvRow m_row;
    int m_line = 0;
    bool m_inRow = false;
    bool m_isRowWhole = false;
};

} // namespace

Result<void, CsvFault> readCsv(const QByteArray &text, char separator,
                               const std::function<bool(const CsvRow &)> &take)
{
    return CsvReader(separator).read(text, take);
}

} // namespace till
