#include "till/view/ReceiptView.h"

#include "till/view/DisplayText.h"
#include "till/view/ReceiptText.h"

#include <algorithm>

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

using Row = ReceiptText::Row;

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

//! The columns as wide as the rows need them, and the article what that leaves of a line.
Widths measure(const ReceiptText &text, int lineWidth)
{
    Widths widths;
    widen(widths, text.captions);
    for (const ReceiptText::Line &line : text.lines)
        widen(widths, line.row);
    widths.sum = std::max(widths.sum, displayWidth(text.total));
    widths.article = std::max(lineWidth - widths.all(), narrowestArticle);
    return widths;
}

//! One receipt being written.
class Rendering
{
public:
    Rendering(const ReceiptText &text, Style style)
        : m_text(text)
        , m_page(style)
        , m_widths(measure(text, m_page.width()))
    {
    }

    QString text()
    {
        m_page.writePieces(separated(m_text.header, QStringLiteral(" ·")), 0);
        writeCaptions();
        writeRule();
        writeLines();
        writeRule();
        writeTotal();
        return m_page.text();
    }

private:
    void writeCaptions()
    {
        m_page.write(gap() + m_page.painted(aligned(m_text.captions, m_widths), Paint::Bold));
    }

    void writeRule()
    {
        m_page.write(m_page.painted(QString(m_widths.all(), QChar(u'─')), Paint::Dim));
    }

    void writeLines()
    {
        if (m_text.lines.isEmpty())
            m_page.writePieces({{m_text.noLines}}, noteIndent());
        for (const ReceiptText::Line &line : m_text.lines) {
            writeRow(line);
            for (const QList<Piece> &note : line.notes)
                m_page.writePieces(note, noteIndent());
        }
    }

    void writeRow(const ReceiptText::Line &line)
    {
        const QString row = aligned(line.row, m_widths);
        if (line.stornoed)
            m_page.write(stornoMark() + m_page.painted(row, Paint::Struck));
        else
            m_page.write(gap() + row);
    }

    //! Notes stand below the article.
    int noteIndent() const { return gapWidth + m_widths.number + gapWidth; }

    void writeTotal()
    {
        const int room = m_widths.all() - gapWidth - displayWidth(m_text.totalCaption);
        const QString total = rightAligned(m_text.total, room);
        m_page.write(gap() + m_page.painted(m_text.totalCaption + total, Paint::Bold));
    }

    const ReceiptText &m_text;
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
    const ReceiptText text = ReceiptText::of(receipt, taras, control, m_translator);
    return Rendering(text, m_style).text();
}

QString ReceiptView::renderQuestion(const Question &question) const
{
    TextPage page(m_style);
    writeBehind(page, QStringLiteral("? "), m_translator.text(question.text), Paint::Bold);
    const QString choices = QStringLiteral("[%1] [%2]")
                                .arg(printable(m_translator.text(question.confirm)),
                                     printable(m_translator.text(question.cancel)));
    page.write(gap() + choices);
    return page.text();
}

QString ReceiptView::renderBehind(const QString &beginning, const QString &text, int margin) const
{
    TextPage page(m_style);
    QList<Piece> words;
    const QStringList split = printable(text).split(QLatin1Char(' '));
    for (const QString &word : split)
        words.append({word});
    page.writePieces(words, margin);
    if (displayWidth(beginning) >= margin)
        return beginning + QLatin1Char('\n') + page.text();
    return leftAligned(beginning, margin) + page.text().mid(margin);
}

QString ReceiptView::renderMessage(const tr::Tr &message) const
{
    TextPage page(m_style);
    writeBehind(page, QStringLiteral("! "), m_translator.text(message), Paint::Yellow);
    return page.text();
}

} // namespace till
