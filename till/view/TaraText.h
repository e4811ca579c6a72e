#ifndef TILL_VIEW_TARATEXT_H
#define TILL_VIEW_TARATEXT_H

#include "till/language/Translator.h"
#include "till/receipt/Receipt.h"
#include "till/receipt/TaraState.h"
#include "till/view/TextPage.h"

namespace till {

//! \a quantity and, if there is one, its unit: "1.5 л".
QString amountText(double quantity, const QString &unit);

//! The article's base unit, short enough for a table.
QString unitOf(const ArticleData &article);

/*!
 * What is noted of a receipt's tara, in words. Amounts are shown with three decimals, and what is
 * shown as "0" counts as nothing, so that words and numbers agree. What it was made from must live
 * as long.
 */
class TaraText
{
public:
    TaraText(const Translator &translator, const Receipt &receipt, const TaraIndex &index)
        : m_translator(translator)
        , m_receipt(receipt)
        , m_index(index)
    {
    }

    //! A bar of how full the tara is, the amounts, and which goods are in it:
    //! "[######....] 3 / 5 л, свободно 2: поз. 3 — 2, поз. 4 — 1".
    QList<Piece> ofTara(const TaraUse &tara) const;
    //! The same without the bar, for whoever draws one.
    QList<Piece> figuresOf(const TaraUse &tara) const;
    //! What is used of the tara's capacity: "3 / 5 л".
    QString amountsOf(const TaraUse &tara) const;
    //! How full it is: "свободно 2".
    Piece fillOf(const TaraUse &tara) const;

    //! Which taras the goods of \a position are in and what found no room:
    //! "в таре: поз. 1 — 2, поз. 2 — 1; не размещено 0.5 л". Nothing when nothing is noted.
    QList<Piece> ofGoods(const GoodsUse &goods, const Position &position) const;

private:
    enum class Fill;
    static Fill kindOf(const TaraUse &tara);
    static Paint paintOf(Fill fill);
    static QString barOf(const TaraUse &tara, Fill fill);
    QString fillText(const TaraUse &tara, Fill fill) const;
    QList<Piece> contentsOf(const TaraUse &tara) const;
    QString contentsUnit(const TaraUse &tara) const;
    QList<Piece> sharesOf(const GoodsUse &goods) const;
    QList<Piece> goneShares(QList<double> amounts) const;
    QList<Piece> unplaced(const GoodsUse &goods, const Position &position) const;
    QString share(int posnum, double used) const;

    const Translator &m_translator;
    const Receipt &m_receipt;
    const TaraIndex &m_index;
};

} // namespace till

#endif // TILL_VIEW_TARATEXT_H
