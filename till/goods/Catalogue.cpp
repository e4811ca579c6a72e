#include "till/goods/Catalogue.h"

#include "till/goods/CatalogueHeader.h"
#include "till/goods/CsvRows.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QMap>
#include <QtCore/QStringList>

#include <algorithm>
#include <array>
#include <iterator>

namespace till {

namespace {

constexpr QByteArrayView ByteOrderMark("\xEF\xBB\xBF");
constexpr std::array Separators{',', ';', '\t'};

//! One row read as an article; refuses what is wrong with it.
class RowReader
{
public:
    using Column = CatalogueHeader::Column;
    using enum CatalogueHeader::Column;

    RowReader(const CatalogueHeader &header, const CsvRow &row)
        : m_header(header)
        , m_row(row)
    {
        if (row.fields.size() != header.size())
            refuseFieldCount();
        header.checkUtf8(row);
    }

    ArticleData read() const
    {
        ArticleData article;
        article.code = code();
        article.name = name();
        article.price = price();
        article.taraMode = taraMode();
        article.taraCapacity = taraCapacity(article.taraMode);
        article.pack = pack();
        article.unit = unit();
        return article;
    }

    [[noreturn]] void refuseColumn(Column column, const QString &reason) const
    {
        m_header.refuseField(m_row.line, m_header.indexOf(column), reason);
    }

private:
    [[noreturn]] void refuseFieldCount() const
    {
        const qsizetype given = m_row.fields.size();
        m_header.refuseField(m_row.line, std::min(given, m_header.size()),
                             QStringLiteral("too %1 fields: %2 where the header has %3")
                                 .arg(given < m_header.size() ? "few" : "many")
                                 .arg(given)
                                 .arg(m_header.size()));
    }

    //! Trimmed again, for the kinds of white space that are more than a byte.
    QString text(Column column) const
    {
        return QString::fromUtf8(m_row.fields[m_header.indexOf(column)]).trimmed();
    }

    [[noreturn]] void refuseText(Column column, const QString &reason) const
    {
        refuseColumn(column, quoted(text(column)) + QLatin1Char(' ') + reason);
    }

    QString code() const
    {
        const QString code = text(Code);
        if (code.isEmpty())
            refuseColumn(Code, QStringLiteral("an article needs a code"));
        checkPrintable(Code, code);
        if (std::any_of(code.cbegin(), code.cend(), [](QChar c) { return c.isSpace(); }))
            refuseText(Code, QStringLiteral("has a space in it"));
        return code;
    }

    QString name() const
    {
        const QString name = text(Name);
        if (name.isEmpty())
            refuseColumn(Name, QStringLiteral("an article needs a name"));
        checkPrintable(Name, name);
        return name.simplified();
    }

    QString unit() const
    {
        const QString unit = text(Unit);
        checkPrintable(Unit, unit);
        return unit.simplified();
    }

    //! What steers terminals and printers is not for people to read: line breaks and tabs neither.
    void checkPrintable(Column column, const QString &value) const
    {
        const auto control = std::find_if(value.cbegin(), value.cend(), [](QChar sign) {
            return sign.category() == QChar::Other_Control;
        });
        if (control != value.cend())
            refuseColumn(column, QStringLiteral("has the control character U+%1 in it")
                                     .arg(int(control->unicode()), 4, 16, QLatin1Char('0')));
    }

    Kopecks price() const
    {
        if (text(Price).isEmpty())
            refuseColumn(Price, QStringLiteral("an article needs a price"));
        const auto price = parseMoney(text(Price));
        if (!price)
            refuseText(Price,
                       "is not an amount from 0 to " + toText(greatestAmount) + ", such as 12.50");
        return *price;
    }

    int taraMode() const
    {
        static const QMap<QString, int> modes{
            {"", Tmc::NoTara}, {"0", Tmc::NoTara}, {"1", Tmc::Tara}, {"2", Tmc::PackagingGoods}};
        const auto mode = modes.constFind(text(TaraMode));
        if (mode == modes.cend())
            refuseText(TaraMode, QStringLiteral("is none of 0 (ordinary goods), 1 (tara) and "
                                                "2 (goods sold into tara)"));
        return *mode;
    }

    double taraCapacity(int mode) const
    {
        const double capacity = quantity(TaraCapacity, 0.0);
        if (mode == Tmc::Tara && !(capacity > 0.0))
            refuseColumn(TaraCapacity, QStringLiteral("a tara needs a capacity above 0"));
        if (mode != Tmc::Tara && capacity > 0.0)
            refuseText(TaraCapacity, QStringLiteral("is for a tara, which has the tara mode 1"));
        return capacity;
    }

    double pack() const
    {
        const double pack = quantity(Pack, 1.0);
        if (!(pack > 0.0))
            refuseText(Pack, QStringLiteral("is not above 0"));
        return pack;
    }

    //! A number of 0 or more.
    double quantity(Column column, double whenEmpty) const
    {
        if (text(column).isEmpty())
            return whenEmpty;
        const auto number = parseQuantity(text(column));
        if (!number || *number < 0.0)
            refuseText(column, "is not a number from 0 to " + toText(greatestQuantity)
                                   + " with at most three decimals, such as 1.5");
        return *number;
    }

    const CatalogueHeader &m_header;
    const CsvRow &m_row;
};

QByteArray contents(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        throw CatalogueRefusal{QStringLiteral("no such file")};
    if (info.isDir())
        throw CatalogueRefusal{QStringLiteral("a directory, not a file")};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw CatalogueRefusal{"cannot be opened: " + file.errorString()};
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw CatalogueRefusal{"cannot be read: " + file.errorString()};
    return bytes.startsWith(ByteOrderMark) ? bytes.sliced(ByteOrderMark.size()) : bytes;
}

//! How many of our columns the first row names when \a separator is taken for the separator.
qsizetype columnsFound(const QByteArray &text, char separator)
{
    const CsvRows head = readCsv(text, separator, 1);
    const CsvRow row = head.fault ? head.fault->row : head.rows.value(0);
    return std::count_if(row.fields.cbegin(), row.fields.cend(), [](const auto &field) {
        return CatalogueHeader::columnCalled(field).has_value();
    });
}

char separatorOf(const QByteArray &text)
{
    return *std::max_element(Separators.cbegin(), Separators.cend(), [&](char a, char b) {
        return columnsFound(text, a) < columnsFound(text, b);
    });
}

[[noreturn]] void refuseFault(const CsvFault &fault, const CatalogueHeader *header)
{
    const qsizetype index = fault.row.fields.size();
    if (header)
        header->refuseField(fault.row.line, index, fault.reason);
    refuseRow(fault.row.line, QStringLiteral("column %1: %2").arg(index + 1).arg(fault.reason));
}

QList<ArticleData> readArticles(const QByteArray &text)
{
    const CsvRows table = readCsv(text, separatorOf(text));
    if (table.rows.isEmpty() && table.fault)
        refuseFault(*table.fault, nullptr);
    if (table.rows.isEmpty())
        throw CatalogueRefusal{QStringLiteral("the file is empty")};

    const CatalogueHeader header(table.rows.first());
    QList<ArticleData> articles;
    QHash<QString, int> lines;
    const QList<CsvRow> rows = table.rows.sliced(1);
    for (const CsvRow &row : rows) {
        const RowReader reader(header, row);
        articles.append(reader.read());
        const QString code = articles.last().code;
        if (lines.contains(code))
            reader.refuseColumn(CatalogueHeader::Code,
                                QStringLiteral("\"%1\" is the code of line %2 already")
                                    .arg(code)
                                    .arg(lines.value(code)));
        lines.insert(code, row.line);
    }
    if (table.fault)
        refuseFault(*table.fault, &header);
    if (articles.isEmpty())
        throw CatalogueRefusal{QStringLiteral("there are no articles below the header")};
    return articles;
}

} // namespace

Result<Catalogue> Catalogue::load(const QString &path)
{
    try {
        Catalogue catalogue;
        const QList<ArticleData> articles = readArticles(contents(path));
        for (const ArticleData &article : articles)
            catalogue.add(QSharedPointer<Article>::create(article));
        return catalogue;
    } catch (const CatalogueRefusal &refusal) {
        const QString line = ':' + QString::number(refusal.line);
        return Fault{refusal.line == 0 ? path : path + line, refusal.reason};
    }
}

QList<QSharedPointer<Article>> Catalogue::containing(const QString &text) const
{
    QList<QSharedPointer<Article>> found;
    std::copy_if(m_articles.cbegin(), m_articles.cend(), std::back_inserter(found),
                 [&text](const QSharedPointer<Article> &article) {
                     return article->data.code.contains(text, Qt::CaseInsensitive)
                            || article->data.name.contains(text, Qt::CaseInsensitive);
                 });
    return found;
}

void Catalogue::add(const QSharedPointer<Article> &article)
{
    m_articles.append(article);
    m_byCode.insert(article->data.code, article);
}

} // namespace till
