#include "till/reports/ReceiptRows.h"

#include "till/language/TillMessages.h"
#include "till/reports/ReceiptJson.h"
#include "till/view/DisplayText.h"
#include "till/view/ReceiptText.h"

#include <QtCore/QStringList>

namespace till {

namespace {

constexpr int numberWidth = 8;
constexpr int timeWidth = 16;
constexpr int totalWidth = 12;

QString columnGap()
{
    return QStringLiteral("  ");
}

//! \a text as a field, between quotes where it must be.
QString field(const QString &text)
{
    const QString shown = printable(text);
    if (!shown.contains(QLatin1Char(',')) && !shown.contains(QLatin1Char('"')))
        return shown;
    return QLatin1Char('"') + QString(shown).replace(QLatin1Char('"'), QLatin1String("\"\""))
           + QLatin1Char('"');
}

QString csvTime(const QDateTime &time)
{
    return time.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
}

QString csvLine(const QStringList &fields)
{
    QStringList written;
    for (const QString &text : fields)
        written.append(field(text));
    return written.join(QLatin1Char(',')) + QLatin1Char('\n');
}

} // namespace

ReceiptRows::ReceiptRows(const Translator &translator, Style style)
    : m_translator(translator)
    , m_style(style)
{
}

QString ReceiptRows::line(const QString &number, const QString &opened, const QString &total,
                          const QString &words) const
{
    const QString beginning =
        QStringList{rightAligned(number, numberWidth), leftAligned(opened, timeWidth),
                    rightAligned(total, totalWidth), QString()}
            .join(columnGap());
    return beginning + elided(words, m_style.columns() - displayWidth(beginning));
}

QString ReceiptRows::captions() const
{
    const auto say = [this](const tr::Tr &message) { return m_translator.text(message); };
    const TextPage page(m_style);
    return page.painted(line(say(messages::tillNumber()), m_translator.text(told("till", "Opened")),
                             say(messages::tillSum()), say(messages::tillSale())),
                        Paint::Bold)
           + QLatin1Char('\n');
}

QString ReceiptRows::row(const KeptReceipt &receipt) const
{
    const QString number = QString::number(receipt.record.id);
    const TextPage page(m_style);
    if (!receipt.recordHolds)
        return page.painted(line(number, {}, {}, wordsOf(receipt, m_translator)), Paint::Red)
               + QLatin1Char('\n');
    return line(number, receipt.opened.toString(QStringLiteral("yyyy-MM-dd hh:mm")),
                toText(receipt.total), wordsOf(receipt, m_translator))
           + QLatin1Char('\n');
}

QString ReceiptRows::none() const
{
    return m_translator.text(told("till", "no receipts")) + QLatin1Char('\n');
}

QString wordsOf(const KeptReceipt &receipt, const Translator &translator)
{
    const ReceiptRecord &record = receipt.record;
    QStringList words;
    if (!receipt.setApart.isEmpty())
        words.append(translator.text(told("till", "set apart: %1").with({receipt.setApart})));
    else if (!receipt.recordHolds)
        words.append(translator.text(
            told("till", "damaged: %1").with({receipt.recordHolds.error().reason})));
    if (receipt.recordHolds) {
        words +=
            {translator.text(nameOfType(record.type)), translator.text(nameOf(record.state)),
             translator.text(told("till", "%1 pos.").with({QString::number(receipt.positions)}))};
        if (!record.order.isEmpty())
            words.append(translator.text(messages::tillOrder()).arg(record.order));
    }
    return printable(words.join(QStringLiteral(" · ")));
}

QString csvCaptions()
{
    return csvLine({"id", "type", "state", "opened", "ended", "order", "positions", "total",
                    "setApart", "fault"});
}

QString csvRow(const KeptReceipt &receipt)
{
    const ReceiptRecord &record = receipt.record;
    const QString number = QString::number(record.id);
    if (!receipt.recordHolds) {
        const QString &fault = receipt.recordHolds.error().reason;
        return csvLine({number, {}, {}, {}, {}, {}, {}, {}, receipt.setApart, fault});
    }
    return csvLine({number,
                    wordOfType(record.type),
                    wordOf(record.state),
                    csvTime(receipt.opened),
                    csvTime(receipt.ended),
                    record.order,
                    QString::number(receipt.positions),
                    toText(receipt.total),
                    receipt.setApart,
                    {}});
}

} // namespace till
