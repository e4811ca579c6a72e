#include "window/receipt/ReceiptModel.h"

#include "window/look/Paints.h"

#include <utility>

namespace till {

namespace {

//! \a stretch of the rows from \a first on that differ: each stretch that hangs together once.
template <typename Differs, typename Tell>
void tellStretches(qsizetype count, Differs differs, Tell tell)
{
    for (qsizetype first = 0; first < count; ++first) {
        if (!differs(first))
            continue;
        qsizetype last = first;
        while (last + 1 < count && differs(last + 1))
            ++last;
        tell(static_cast<int>(first), static_cast<int>(last));
        first = last;
    }
}

template <typename Use>
std::optional<Use> copied(const Use *use)
{
    return use ? std::optional(*use) : std::nullopt;
}

} // namespace

ReceiptModel::ReceiptModel(const Translator &translator)
    : m_translator(translator)
{
}

QList<ReceiptModel::Row> ReceiptModel::rowsOf(const ShownReceipt *shown)
{
    QList<Row> rows;
    if (!shown)
        return rows;
    const auto lines = shown->receipt().lines();
    rows.reserve(lines.size());
    for (const auto &line : lines) {
        const TaraUse *const tara = shown->index().tara(line->getPosnum());
        rows.append({line->record(), copied(tara),
                     copied(shown->index().goodsOf(line->getPosnum())),
                     tara ? Filling::of(*shown, *tara).layers : QList<Filling::Layer>()});
    }
    return rows;
}

void ReceiptModel::show(std::shared_ptr<const ShownReceipt> receipt)
{
    const bool isSame =
        m_shown && receipt
        && (m_shown->receipt().id() == receipt->receipt().id() || m_shown->receipt().id() == 0);
    QList<Row> rows = rowsOf(receipt.get());
    if (!isSame || rows.size() < m_rows.size()) {
        beginResetModel();
        m_shown = std::move(receipt);
        m_rows = std::move(rows);
        m_lit.clear();
        endResetModel();
        return;
    }
    const QList<Row> before = m_rows;
    const qsizetype kept = before.size();
    m_shown = std::move(receipt);
    m_rows = rows.first(kept);
    tellStretches(
        kept, [&](qsizetype row) { return !(before[row] == rows[row]); },
        [this](int first, int last) { tellChanged(first, last); });
    if (rows.size() == kept)
        return;
    beginInsertRows({}, static_cast<int>(kept), static_cast<int>(rows.size()) - 1);
    m_rows = std::move(rows);
    endInsertRows();
}

void ReceiptModel::tellChanged(int first, int last)
{
    Q_EMIT dataChanged(index(first, 0), index(last, columns - 1));
}

void ReceiptModel::translate(const Translator &translator)
{
    m_translator = translator;
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columns - 1);
    if (!m_rows.isEmpty())
        tellChanged(0, static_cast<int>(m_rows.size()) - 1);
}

void ReceiptModel::setLit(const QSet<int> &posnums)
{
    const QSet<int> before = std::exchange(m_lit, posnums);
    if (before == m_lit)
        return;
    tellStretches(
        m_rows.size(),
        [&](qsizetype row) {
            const int posnum = m_rows[row].line.posnum;
            return before.contains(posnum) != m_lit.contains(posnum);
        },
        [this](int first, int last) { tellChanged(first, last); });
}

int ReceiptModel::rowOf(int posnum) const
{
    const qsizetype place = m_shown ? m_shown->receipt().placeOf(posnum) : -1;
    return place < m_rows.size() ? static_cast<int>(place) : -1; // new ones are told last
}

std::optional<Filling> ReceiptModel::fillingAt(int row) const
{
    const Row &shown = m_rows[row];
    if (!shown.tara)
        return {};
    return Filling{shown.line.posnum, shown.tara->capacity, shown.layers};
}

std::optional<GoodsLook> ReceiptModel::lookAt(int row) const
{
    const std::optional<int> ordinal = m_shown->goodsOrdinal(posnumAt(row));
    return ordinal ? std::optional(GoodsLook::of(*ordinal)) : std::nullopt;
}

QList<Piece> ReceiptModel::notesAt(int row) const
{
    const Row &shown = m_rows[row];
    const TaraText text(m_translator, m_shown->receipt(), m_shown->index());
    QList<Piece> pieces;
    if (shown.line.stornoed)
        pieces.append({stornoMark(), Paint::Red});
    if (shown.tara)
        pieces += text.figuresOf(*shown.tara);
    if (shown.goods)
        pieces += text.ofGoods(*shown.goods, *positionAt(row));
    return pieces;
}

QString ReceiptModel::stornoMark() const
{
    return m_translator.text(told("till", "stornoed"));
}

int ReceiptModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ReceiptModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : columns;
}

QVariant ReceiptModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return textAt(index.row(), index.column());
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return spokenAt(index.row(), index.column());
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(
            Qt::AlignVCenter | (index.column() == ArticleName ? Qt::AlignLeft : Qt::AlignRight));
    default:
        return {};
    }
}

QVariant ReceiptModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    const ReceiptText::Row captions = ReceiptText::captionsIn(m_translator);
    return QStringList{captions.number, captions.article, captions.quantity, captions.price,
                       captions.sum}
        .value(section);
}

ReceiptWording ReceiptModel::wording() const
{
    return {m_translator, m_shown->receipt(), m_shown->index()};
}

QSharedPointer<const Position> ReceiptModel::positionAt(int row) const
{
    return m_shown->receipt().line(posnumAt(row));
}

QString ReceiptModel::textAt(int row, int column) const
{
    const ReceiptText::Row text = wording().row(*positionAt(row));
    switch (column) {
    case Number:
        return text.number;
    case ArticleName:
        return text.article;
    case Count:
        return text.quantity;
    case Price:
        return text.price;
    case Sum:
        return text.sum;
    default:
        return {};
    }
}

//! What the eye sees beside the text of the article is said with it.
QString ReceiptModel::spokenAt(int row, int column) const
{
    const QString text = textAt(row, column);
    const QString notes = column == ArticleName ? plainText(notesAt(row)) : QString();
    return notes.isEmpty() ? text : text + u'\n' + notes;
}

} // namespace till
