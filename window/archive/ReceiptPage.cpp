#include "window/archive/ReceiptPage.h"

#include "till/receipt/Receipt.h"
#include "till/reports/CourseText.h"
#include "till/reports/ReceiptJson.h"
#include "till/view/ReceiptText.h"

namespace till {

namespace {

QString element(const QString &name, const QString &html)
{
    return QStringLiteral("<%1>%2</%1>").arg(name, html);
}

//! What looks alarming on a terminal is bold here: colours are the desktop's.
QString htmlOf(const Piece &piece)
{
    const QString text = piece.text.toHtmlEscaped();
    switch (piece.paint) {
    case Paint::Plain:
    case Paint::Dim:
    case Paint::Green:
    case Paint::Cyan:
        return text;
    case Paint::Struck:
        return element(QStringLiteral("s"), text);
    case Paint::Bold:
    case Paint::Red:
    case Paint::Yellow:
        break;
    }
    return element(QStringLiteral("b"), text);
}

QString htmlOf(const QList<Piece> &pieces)
{
    QStringList words;
    for (const Piece &piece : pieces)
        words.append(htmlOf(piece));
    return words.join(QLatin1Char(' '));
}

QString rowOf(const ReceiptText::Row &row, const QString &cell, bool isStruck)
{
    QString html;
    const QStringList texts{row.number, row.article, row.quantity, row.price, row.sum};
    for (const QString &text : texts) {
        const QString escaped = text.toHtmlEscaped();
        const bool isNumber = &text != &texts[1];
        html += QStringLiteral("<%1 align=\"%2\">%3</%1>")
                    .arg(cell, isNumber ? QStringLiteral("right") : QStringLiteral("left"),
                         isStruck ? element(QStringLiteral("s"), escaped) : escaped);
    }
    return element(QStringLiteral("tr"), html);
}

//! A row with one cell below the article.
QString noteRow(const QString &html)
{
    return QStringLiteral("<tr><td></td><td colspan=\"4\">%1</td></tr>").arg(html);
}

QString tableOf(const ReceiptText &text)
{
    QString rows = rowOf(text.captions, QStringLiteral("th"), false);
    for (const ReceiptText::Line &line : text.lines) {
        rows += rowOf(line.row, QStringLiteral("td"), line.stornoed);
        for (const QList<Piece> &note : line.notes)
            rows += noteRow(htmlOf(note));
    }
    if (text.lines.isEmpty())
        rows += noteRow(text.noLines.toHtmlEscaped());
    rows += rowOf({{}, text.totalCaption, {}, {}, text.total}, QStringLiteral("th"), false);
    return QStringLiteral("<table cellpadding=\"3\" width=\"100%\">%1</table>").arg(rows);
}

} // namespace

Message damageOf(const KeptReceipt &kept)
{
    return told("till", "Receipt %1 is damaged: %2")
        .with({QString::number(kept.record.id), kept.holds().error().reason});
}

QString receiptPage(const KeptReceipt &kept, const KeptJournal &journal,
                    const Translator &translator)
{
    const Receipt receipt(kept.record);
    const TaraState taras = TaraState::read(kept.record.pluginData, taraPlugin());
    const ReceiptText text = ReceiptText::of(receipt, taras, controlOf(receipt), translator);
    const QString course = courseText(journal.entries, translator, Style());
    QString html =
        element(QStringLiteral("p"), htmlOf(separated(text.header, QStringLiteral(" ·"))))
        + tableOf(text);
    if (!kept.dataHold)
        html +=
            element(QStringLiteral("p"),
                    element(QStringLiteral("b"), translator.text(damageOf(kept)).toHtmlEscaped()));
    if (!course.isEmpty())
        html += element(QStringLiteral("p"),
                        element(QStringLiteral("b"),
                                translator.text(told("till", "Course")).toHtmlEscaped()))
                + element(QStringLiteral("pre"), course.toHtmlEscaped());
    for (const QString &fault : journal.faults)
        html += element(QStringLiteral("p"), fault.toHtmlEscaped());
    return html;
}

} // namespace till
