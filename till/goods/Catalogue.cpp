#include "till/goods/Catalogue.h"

#include "till/goods/CatalogueHeader.h"
#include "till/goods/CsvRows.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QMap>
#include <QtCore/QSet>
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
            return sign < QChar(0x20) || (sign >= QChar(0x7F) && sign < QChar(0xA0));
        });
        if (control != value.cend())
            refuseColumn(column, QStringLiteral("has the control character U+%1 in it")
                                     .arg(int(control->unicode()), 4, 16, QLatin1Char('0')));
    }

    Kopecks price() const
    {
        const QString amount = text(Price);
        if (amount.isEmpty())
            refuseColumn(Price, QStringLiteral("an article needs a price"));
        const auto price = parseMoney(amount);
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
        const QString value = text(column);
        if (value.isEmpty())
            return whenEmpty;
        const auto number = parseQuantity(value);
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
    CsvRow row;
    const auto read = readCsv(text, separator, [&row](const CsvRow &first) {
        row = first;
        return false;
    });
    if (!read)
        row = read.error().row;
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

//! \a text as it is compared in a search: without its letter case, and with "е" for "ё".
QString searchable(const QString &text)
{
    return text.toCaseFolded().replace(u'ё', u'е');
}

[[noreturn]] void refuseFault(const CsvFault &fault, const CatalogueHeader *header)
{
    const qsizetype index = fault.row.fields.size();
    if (header)
        header->refuseField(fault.row.line, index, fault.reason);
    refuseRow(fault.row.line, QStringLiteral("column %1: %2").arg(index + 1).arg(fault.reason));
}

} // namespace

Result<Catalogue> Catalogue::load(const QString &path)
{
    try {
        Catalogue catalogue;
        catalogue.read(contents(path));
        return catalogue;
    } catch (const CatalogueRefusal &refusal) {
        const QString line = ':' + QString::number(refusal.line);
        return Fault{refusal.line == 0 ? path : path + line, refusal.reason};
    }
}

void Catalogue::read(const QByteArray &text)
{
    std::optional<CatalogueHeader> header;
    QList<int> lines;    // of the articles
    QSet<QString> units; // each kept once
    const auto read = readCsv(text, separatorOf(text), [&](const CsvRow &row) {
        if (!header) {
            header.emplace(row);
            return true;
        }
        const RowReader reader(*header, row);
        ArticleData article = reader.read();
        article.unit = *units.insert(article.unit);
        if (!add(article))
            reader.refuseColumn(CatalogueHeader::Code,
                                QStringLiteral("\"%1\" is the code of line %2 already")
                                    .arg(article.code)
                                    .arg(lines[placeOf(article.code)]));
        lines.append(row.line);
        return true;
    });
    if (!read)
        refuseFault(read.error(), header ? &*header : nullptr);
    if (!header)
        throw CatalogueRefusal{QStringLiteral("the file is empty")};
    if (m_articles.isEmpty())
        throw CatalogueRefusal{QStringLiteral("there are no articles below the header")};
}

QList<QSharedPointer<Article>> Catalogue::containing(const QString &text) const
{
    QList<QSharedPointer<Article>> found;
    const QString sought = searchable(text);
    std::copy_if(m_articles.cbegin(), m_articles.cend(), std::back_inserter(found),
                 [&sought](const QSharedPointer<Article> &article) {
                     return searchable(article->data.code).contains(sought)
                            || searchable(article->data.name).contains(sought);
                 });
    return found;
}

bool Catalogue::add(const ArticleData &data)
{
    auto &article = m_byCode[data.code];
    if (article)
        return false;
    article = QSharedPointer<Article>::create(data);
    m_articles.append(article);
    return true;
}

qsizetype Catalogue::placeOf(const QString &code) const
{
    return m_articles.indexOf(m_byCode.value(code));
}

} // namespace till
