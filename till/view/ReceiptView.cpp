#include "till/view/ReceiptView.h"

#include "till/language/TillMessages.h"
#include "till/view/DisplayText.h"
#include "till/view/TaraNotes.h"

#include <algorithm>
#include <utility>

namespace till {

namespace {

constexpr int narrowestArticle = 10;
constexpr int gapWidth = 2; // between columns, and of the mark before each row

QString gap()
{
    return QStringLiteral("  ");
}

QString stornoMark()
{
    return QStringLiteral("x ");
}

//! A row of the table, as texts.
struct Row
{
    QString number;
    QString article;
    QString quantity;
    QString price;
    QString sum;
};

//! How wide the columns are.
struct Widths
{
    int number = 0;
    int article = 0;
    int quantity = 0;
    int price = 0;
    int sum = 0;

    //! Of the whole table, with the mark and the gaps.
    int all() const { return number + article + quantity + price + sum + 5 * gapWidth; }
};

//! Makes room for \a row, but for its article, which takes what the other columns leave.
void widen(Widths &widths, const Row &row)
{
    widths.number = std::max(widths.number, displayWidth(row.number));
    widths.quantity = std::max(widths.quantity, displayWidth(row.quantity));
    widths.price = std::max(widths.price, displayWidth(row.price));
    widths.sum = std::max(widths.sum, displayWidth(row.sum));
}

QString aligned(const Row &row, const Widths &widths)
{
    const QString article = elided(row.article, widths.article);
    return QStringList{rightAligned(row.number, widths.number),
                       leftAligned(article, widths.article),
                       rightAligned(row.quantity, widths.quantity),
                       rightAligned(row.price, widths.price), rightAligned(row.sum, widths.sum)}
        .join(gap());
}

tr::Tr nameOfType(int type)
{
    switch (type) {
    case Document::Sale:
        return messages::tillSale();
    case Document::Return:
        return messages::tillReturn();
    default:
        return messages::tillDocument();
    }
}

tr::Tr nameOf(ReceiptState state)
{
    switch (state) {
    case ReceiptState::Open:
        return messages::tillOpen();
    case ReceiptState::Subtotal:
        return messages::tillSubtotal();
    case ReceiptState::Closed:
        return messages::tillClosed();
    case ReceiptState::Cancelled:
        return messages::tillCancelled();
    }
    return {};
}

//! One receipt being written.
class Rendering
{
public:
    Rendering(const Translator &translator, Style style, const Receipt &receipt,
              const TaraState &taras)
        : m_translator(translator)
        , m_style(style)
        , m_receipt(receipt)
        , m_taras(taras)
        , m_notes(translator, receipt, taras)
        , m_lines(receipt.lines())
        , m_page(style)
        , m_widths(measured())
    {
    }

    QString text(TaraControl control)
    {
        writeHeader(control);
        writeCaptions();
        writeRule();
        writeLines();
        writeRule();
        writeTotal();
        return m_page.text();
    }

private:
    QString say(const tr::Tr &message) const { return m_translator.text(message); }

    // Above the table

    void writeHeader(TaraControl control)
    {
        QList<Piece> pieces{{title(), Paint::Bold}, {say(nameOf(m_receipt.state()))}};
        if (const auto order = m_receipt.getOrder())
            pieces.append({say(messages::tillOrder()).arg(printable(order->number))});
        const QStringList softChecks = m_receipt.softChecks();
        for (const QString &number : softChecks)
            pieces.append({say(messages::tillSoftCheck()).arg(printable(number))});
        if (control == TaraControl::Suspended)
            pieces.append({say(messages::tillTaraSuspended()), Paint::Yellow});
        if (control == TaraControl::Absent)
            pieces.append({say(messages::tillTaraAbsent()), Paint::Yellow});
        m_page.writePieces(separated(pieces, QStringLiteral(" ·")), 0);
    }

    //! "Чек № 12"; without the number as long as there is none.
    QString title() const
    {
        const QString type = say(nameOfType(m_receipt.getType()));
        if (m_receipt.id() == 0)
            return type;
        return QStringList{type, say(messages::tillNumber()), QString::number(m_receipt.id())}.join(
            QLatin1Char(' '));
    }

    // The table

    Row captions() const
    {
        return {say(messages::tillNumber()), say(messages::tillArticle()),
                say(messages::tillQuantity()), say(messages::tillPrice()),
                say(messages::tillSum())};
    }

    Row rowOf(const Position &position) const
    {
        const ArticleData &article = position.article();
        return {QString::number(position.getPosnum()),
                printable(article.code + QLatin1Char(' ') + article.name), quantityOf(position),
                toText(article.price), toText(position.sum())};
    }

    //! "1.5 л", or "3 шт = 1.5 л" of an article whose piece is not one base unit.
    QString quantityOf(const Position &position) const
    {
        const QString base = amountText(position.getBquant(), unitOf(position.article()));
        if (position.article().pack == 1.0)
            return base;
        const QString count = amountText(position.getCquant(), say(messages::tillPieces()));
        return count + QStringLiteral(" = ") + base;
    }

    Widths measured() const
    {
        Widths widths;
        widen(widths, captions());
        for (const auto &position : m_lines)
            widen(widths, rowOf(*position));
        widths.sum = std::max(widths.sum, displayWidth(toText(m_receipt.total())));
        widths.article = std::max(TextPage::width - widths.all(), narrowestArticle);
        return widths;
    }

    void writeCaptions()
    {
        m_page.write(gap() + m_page.painted(aligned(captions(), m_widths), Paint::Bold));
    }

    void writeRule()
    {
        m_page.write(m_page.painted(QString(m_widths.all(), QChar(u'─')), Paint::Dim));
    }

    void writeLines()
    {
        if (m_lines.isEmpty())
            m_page.writePieces({{say(messages::tillNoLines())}}, noteIndent());
        for (const auto &position : m_lines) {
            writePosition(*position);
            writeNotes(*position);
        }
    }

    void writePosition(const Position &position)
    {
        const QString row = aligned(rowOf(position), m_widths);
        if (!position.isStornoed())
            m_page.write(gap() + row);
        else if (m_style.colour)
            m_page.write(gap() + m_page.painted(row, Paint::Struck));
        else
            m_page.write(stornoMark() + row);
    }

    void writeNotes(const Position &position)
    {
        QList<QList<Piece>> notes;
        if (const TaraUse *tara = m_taras.tara(position.getPosnum()))
            notes.append(m_notes.ofTara(*tara));
        if (const GoodsUse *goods = m_taras.goodsOf(position.getPosnum()))
            notes.append(m_notes.ofGoods(*goods, position));
        for (const QList<Piece> &note : std::as_const(notes)) {
            if (!note.isEmpty())
                m_page.writePieces(note, noteIndent());
        }
    }

    //! Notes stand below the article.
    int noteIndent() const { return gapWidth + m_widths.number + gapWidth; }

    void writeTotal()
    {
        const QString label = say(messages::tillTotal());
        const int room = m_widths.all() - gapWidth - displayWidth(label);
        const QString total = rightAligned(toText(m_receipt.total()), room);
        m_page.write(gap() + m_page.painted(label + total, Paint::Bold));
    }

    const Translator &m_translator;
    const Style m_style;
    const Receipt &m_receipt;
    const TaraState &m_taras;
    const TaraNotes m_notes;
    const QList<QSharedPointer<Position>> m_lines;
    TextPage m_page;
    const Widths m_widths;
};

//! Writes the lines of \a text as they stand, behind \a sign in the margin.
void writeBehind(TextPage &page, const QString &sign, const QString &text, Paint paint)
{
    const QStringList lines = text.split(QLatin1Char('\n'));
    QString margin = sign;
    for (const QString &line : lines) {
        page.write(margin + page.painted(printable(line), paint));
        margin = gap();
    }
}

} // namespace

ReceiptView::ReceiptView(const Translator &translator, Style style)
    : m_translator(translator)
    , m_style(style)
{
}

QString ReceiptView::render(const Receipt &receipt, const TaraState &taras,
                            TaraControl control) const
{
    return Rendering(m_translator, m_style, receipt, taras).text(control);
}

QString ReceiptView::renderQuestion(const tr::Tr &question, const tr::Tr &confirm,
                                    const tr::Tr &cancel) const
{
    TextPage page(m_style);
    writeBehind(page, QStringLiteral("? "), m_translator.text(question), Paint::Bold);
    const QString choices =
        QStringLiteral("[%1] [%2]")
            .arg(printable(m_translator.text(confirm)), printable(m_translator.text(cancel)));
    page.write(gap() + choices);
    return page.text();
}

QString ReceiptView::renderMessage(const tr::Tr &message) const
{
    TextPage page(m_style);
    writeBehind(page, QStringLiteral("! "), m_translator.text(message), Paint::Yellow);
    return page.text();
}

} // namespace till
