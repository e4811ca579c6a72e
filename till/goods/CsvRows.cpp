#include "till/goods/CsvRows.h"

#include <csv.h>

#include <algorithm>

namespace till {

namespace {

//! Feeds the parser line by line, which is how it comes to know where a row starts.
class Reader
{
public:
    explicit Reader(char separator)
    {
        csv_init(&m_parser, CSV_STRICT | CSV_STRICT_FINI);
        csv_set_delim(&m_parser, static_cast<unsigned char>(separator));
    }
    ~Reader() { csv_free(&m_parser); }
    Q_DISABLE_COPY_MOVE(Reader)

    CsvRows read(const QByteArray &text, qsizetype maxRows)
    {
        for (qsizetype from = 0; from < text.size() && m_result.rows.size() < maxRows;) {
            const qsizetype length = lineLength(text, from);
            if (!parseLine(QByteArrayView(text).sliced(from, length)))
                return m_result;
            from += length;
        }
        if (m_result.rows.size() < maxRows && csv_fini(&m_parser, fieldEnded, rowEnded, this) != 0)
            fail(QStringLiteral("the closing quote is missing"));
        return m_result;
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

    bool parseLine(QByteArrayView line)
    {
        ++m_line;
        if (!m_inRow)
            m_row.line = m_line;
        m_inRow = m_inRow || !line.trimmed().isEmpty();
        const auto size = static_cast<size_t>(line.size());
        if (csv_parse(&m_parser, line.data(), size, fieldEnded, rowEnded, this) == size)
            return true;
        fail(csv_error(&m_parser) == CSV_EPARSE
                 ? QStringLiteral("a quote stands alone: put the field in quotes and double those "
                                  "within")
                 : QString::fromUtf8(csv_strerror(csv_error(&m_parser))));
        return false;
    }

    void fail(const QString &reason) { m_result.fault = CsvFault{m_row, reason}; }

    static void fieldEnded(void *field, size_t size, void *reader)
    {
        auto &row = static_cast<Reader *>(reader)->m_row;
        row.fields.append(QByteArray(static_cast<const char *>(field), qsizetype(size)).trimmed());
    }

    static void rowEnded(int, void *reader)
    {
        auto *self = static_cast<Reader *>(reader);
        const auto &fields = self->m_row.fields;
        if (!std::all_of(fields.cbegin(), fields.cend(), [](const auto &f) { return f.isEmpty(); }))
            self->m_result.rows.append(self->m_row);
        self->m_row.fields.clear();
        self->m_inRow = false;
    }

    CsvRows m_result;
    csv_parser m_parser;
    CsvRow m_row;
    int m_line = 0;
    bool m_inRow = false;
};

} // namespace

CsvRows readCsv(const QByteArray &text, char separator, qsizetype maxRows)
{
    return Reader(separator).read(text, maxRows);
}

} // namespace till
