#include "till/view/ReceiptText.h"

#include "till/language/TillMessages.h"
#include "till/language/Translator.h"
#include "till/view/DisplayText.h"
#include "till/view/TaraText.h"

namespace till {

namespace {

//! One receipt being put into words.
class Wording
{
public:
    Wording(const Translator &translator, const Receipt &receipt, const TaraState &taras)
        : m_translator(translator)
        , m_receipt(receipt)
        , m_taras(taras)
        , m_taraText(translator, receipt, m_taras)
    {
    }

    ReceiptText text(TaraControl control) const
    {
        return {header(control),
                captions(),
                lines(),
                say(messages::tillNoLines()),
                say(messages::tillTotal()),
                toText(m_receipt.total())};
    }

private:
    QString say(const tr::Tr &message) const { return m_translator.text(message); }

    QList<Piece> header(TaraControl control) const
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

    //! "Чек № 12"; without the number as long as there is none.
    QString title() const
    {
        const QString type = say(nameOfType(m_receipt.getType()));
        if (m_receipt.id() == 0)
            return type;
        return QStringList{type, say(messages::tillNumber()), QString::number(m_receipt.id())}.join(
            QLatin1Char(' '));
    }

    ReceiptText::Row captions() const
    {
        return {say(messages::tillNumber()), say(messages::tillArticle()),
                say(messages::tillQuantity()), say(messages::tillPrice()),
                say(messages::tillSum())};
    }

    QList<ReceiptText::Line> lines() const
    {
        QList<ReceiptText::Line> lines;
        const auto positions = m_receipt.lines();
        for (const auto &position : positions)
            lines.append({rowOf(*position), position->isStornoed(), notesOf(*position)});
        return lines;
    }

    ReceiptText::Row rowOf(const Position &position) const
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

    QList<QList<Piece>> notesOf(const Position &position) const
    {
        QList<QList<Piece>> notes;
        if (const TaraUse *tara = m_taras.tara(position.getPosnum()))
            notes.append(m_taraText.ofTara(*tara));
        if (const GoodsUse *goods = m_taras.goodsOf(position.getPosnum()))
            notes.append(m_taraText.ofGoods(*goods, position));
        notes.removeIf([](const QList<Piece> &note) { return note.isEmpty(); });
        return notes;
    }

    const Translator &m_translator;
    const Receipt &m_receipt;
    const TaraIndex m_taras;
    const TaraText m_taraText;
};

} // namespace

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

ReceiptText ReceiptText::of(const Receipt &receipt, const TaraState &taras, TaraControl control,
                            const Translator &translator)
{
    return Wording(translator, receipt, taras).text(control);
}

} // namespace till
