#include "till/view/TaraText.h"

#include "till/language/TillMessages.h"
#include "till/view/DisplayText.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace till {

namespace {

constexpr int barCells = 10;
constexpr int longestUnit = 6;

bool isShownAsZero(double quantity)
{
    return toText(quantity) == QLatin1String("0");
}

double usedOf(const TaraUse &tara)
{
    return tara.capacity - tara.free;
}

//! Cells of a partly filled tara: at least one and never all, as it is neither empty nor full.
int partialCells(const TaraUse &tara)
{
    if (usedOf(tara) < 0)
        return 0;
    const auto cells = static_cast<int>(std::lround(usedOf(tara) / tara.capacity * barCells));
    return std::clamp(cells, 1, barCells - 1);
}

QString bar(int cells, char sign)
{
    return QLatin1Char('[') + QString(cells, QLatin1Char(sign))
           + QString(barCells - cells, QLatin1Char('.')) + QLatin1Char(']');
}

} // namespace

enum class TaraText::Fill { Empty, Partial, Full, Overfull };

QString amountText(double quantity, const QString &unit)
{
    return unit.isEmpty() ? toText(quantity) : toText(quantity) + QLatin1Char(' ') + unit;
}

QString unitOf(const ArticleData &article)
{
    return elided(printable(article.unit), longestUnit);
}

QList<Piece> TaraText::ofTara(const TaraUse &tara) const
{
    const Fill fill = kindOf(tara);
    return QList<Piece>{{barOf(tara, fill), paintOf(fill)}} + figuresOf(tara);
}

QList<Piece> TaraText::figuresOf(const TaraUse &tara) const
{
    const QList<Piece> contents = contentsOf(tara);
    QList<Piece> pieces{{amountsOf(tara) + QLatin1Char(',')}, fillOf(tara)};
    if (!contents.isEmpty())
        pieces.last().text += QLatin1Char(':');
    return pieces + separated(contents, QStringLiteral(","));
}

QString TaraText::amountsOf(const TaraUse &tara) const
{
    return toText(usedOf(tara)) + QStringLiteral(" / ")
           + amountText(tara.capacity, contentsUnit(tara));
}

Piece TaraText::fillOf(const TaraUse &tara) const
{
    const Fill fill = kindOf(tara);
    return {fillText(tara, fill), paintOf(fill)};
}

QList<Piece> TaraText::ofGoods(const GoodsUse &goods, const Position &position) const
{
    const QList<Piece> rest = unplaced(goods, position);
    QList<Piece> shares = separated(sharesOf(goods), QStringLiteral(","));
    if (shares.isEmpty())
        return rest;
    shares.prepend({m_translator.text(messages::tillInTara()) + QLatin1Char(':')});
    if (!rest.isEmpty())
        shares.last().text += QLatin1Char(';');
    return shares + rest;
}

TaraText::Fill TaraText::kindOf(const TaraUse &tara)
{
    if (isShownAsZero(usedOf(tara)))
        return Fill::Empty;
    if (isShownAsZero(tara.free))
        return Fill::Full;
    return tara.free < 0 ? Fill::Overfull : Fill::Partial;
}

Paint TaraText::paintOf(Fill fill)
{
    switch (fill) {
    case Fill::Empty:
        return Paint::Cyan;
    case Fill::Partial:
        return Paint::Green;
    case Fill::Full:
        return Paint::Yellow;
    case Fill::Overfull:
        return Paint::Red;
    }
    return Paint::Plain;
}

QString TaraText::barOf(const TaraUse &tara, Fill fill)
{
    switch (fill) {
    case Fill::Empty:
        return bar(0, '#');
    case Fill::Partial:
        return bar(partialCells(tara), '#');
    case Fill::Full:
        return bar(barCells, '#');
    case Fill::Overfull:
        return bar(barCells, '!');
    }
    return {};
}

QString TaraText::fillText(const TaraUse &tara, Fill fill) const
{
    switch (fill) {
    case Fill::Empty:
        return m_translator.text(messages::tillTaraEmpty());
    case Fill::Partial:
        return m_translator.text(messages::tillTaraFree()).arg(toText(tara.free));
    case Fill::Full:
        return m_translator.text(messages::tillTaraFull());
    case Fill::Overfull:
        return m_translator.text(messages::tillTaraOverfull()).arg(toText(-tara.free));
    }
    return {};
}

QList<Piece> TaraText::contentsOf(const TaraUse &tara) const
{
    QList<Piece> contents;
    const auto all = m_index.goodsIn(tara);
    for (const GoodsUse *goods : all)
        contents.append({share(goods->posnum, goods->used.value(tara.id))});
    return contents;
}

//! The unit of the goods in the tara; none when it holds none or their units differ.
QString TaraText::contentsUnit(const TaraUse &tara) const
{
    QStringList units;
    const auto all = m_index.goodsIn(tara);
    for (const GoodsUse *goods : all) {
        if (const auto position = m_receipt.line(goods->posnum))
            units.append(unitOf(position->article()));
    }
    units.removeDuplicates();
    return units.size() == 1 ? units.first() : QString();
}

//! The taras that the goods are in, in the order of the taras; then those that are gone.
QList<Piece> TaraText::sharesOf(const GoodsUse &goods) const
{
    QList<Piece> shares;
    QMap<QString, double> gone = goods.used;
    const auto taras = m_index.tarasOf(goods);
    for (const TaraUse *tara : taras)
        shares.append({share(tara->posnum, gone.take(tara->id))});
    return shares + goneShares(gone.values());
}

//! A tara that is gone has nothing but a random name to go by: the greatest amount comes first.
QList<Piece> TaraText::goneShares(QList<double> amounts) const
{
    std::sort(amounts.begin(), amounts.end(), std::greater<>());
    const QString pattern = m_translator.text(messages::tillShareOfGone());
    QList<Piece> shares;
    for (const double used : std::as_const(amounts))
        shares.append({pattern.arg(toText(used)), Paint::Red});
    return shares;
}

//! What found no room, or is noted beyond the quantity of the position. Nothing when all is placed.
QList<Piece> TaraText::unplaced(const GoodsUse &goods, const Position &position) const
{
    double left = position.getBquant();
    for (const double used : goods.used)
        left -= used;
    if (isShownAsZero(left))
        return {};
    const tr::Tr pattern = left > 0 ? messages::tillUnplaced() : messages::tillOverplaced();
    const QString amount = amountText(std::abs(left), unitOf(position.article()));
    return {{m_translator.text(pattern).arg(amount), Paint::Red}};
}

QString TaraText::share(int posnum, double used) const
{
    return m_translator.text(messages::tillShare()).arg(QString::number(posnum), toText(used));
}

} // namespace till
