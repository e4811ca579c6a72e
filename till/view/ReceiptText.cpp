#include "till/view/ReceiptText.h"

#include "till/language/TillMessages.h"
#include "till/language/Translator.h"
#include "till/view/DisplayText.h"

namespace till {

QList<Piece> ReceiptWording::header(TaraControl control) const
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
    return pieces;
}

QString ReceiptWording::title() const
{
    const QString type = say(nameOfType(m_receipt.getType()));
    if (m_receipt.id() == 0)
        return type;
    return QStringList{type, say(messages::tillNumber()), QString::number(m_receipt.id())}.join(
        QLatin1Char(' '));
}

ReceiptText::Row ReceiptWording::row(const Position &position) const
{
    const ArticleData &article = position.article();
    return {QString::number(position.getPosnum()),
            printable(article.code + QLatin1Char(' ') + article.name), quantityOf(position),
            toText(article.price), toText(position.sum())};
}

//! "1.5 л", or "3 шт = 1.5 л" of an article whose piece is not one base unit.
QString ReceiptWording::quantityOf(const Position &position) const
{
    const QString base = amountText(position.getBquant(), unitOf(position.article()));
    if (position.article().pack == 1.0)
        return base;
    const QString count = amountText(position.getCquant(), say(messages::tillPieces()));
    return count + QStringLiteral(" = ") + base;
}

QList<QList<Piece>> ReceiptWording::notes(const Position &position) const
{
    QList<QList<Piece>> notes;
    if (const TaraUse *tara = m_index.tara(position.getPosnum()))
        notes.append(m_taraText.ofTara(*tara));
    if (const GoodsUse *goods = m_index.goodsOf(position.getPosnum()))
        notes.append(m_taraText.ofGoods(*goods, position));
    notes.removeIf([](const QList<Piece> &note) { return note.isEmpty(); });
    return notes;
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

ReceiptText::Row ReceiptText::captionsIn(const Translator &translator)
{
    return {translator.text(messages::tillNumber()), translator.text(messages::tillArticle()),
            translator.text(messages::tillQuantity()), translator.text(messages::tillPrice()),
            translator.text(messages::tillSum())};
}

ReceiptText ReceiptText::of(const Receipt &receipt, const TaraState &taras, TaraControl control,
                            const Translator &translator)
{
    const TaraIndex index(taras);
    const ReceiptWording wording(translator, receipt, index);
    QList<Line> lines;
    const auto positions = receipt.lines();
    for (const auto &position : positions)
        lines.append({wording.row(*position), position->isStornoed(), wording.notes(*position)});
    return {wording.header(control),
            captionsIn(translator),
            lines,
            translator.text(messages::tillNoLines()),
            translator.text(messages::tillTotal()),
            toText(receipt.total())};
}

} // namespace till
