#include "window/look/Filling.h"

namespace till {

Filling Filling::of(const ShownReceipt &shown, const TaraUse &tara)
{
    Filling filling{tara.posnum, tara.capacity, {}};
    const auto all = shown.index().goodsIn(tara);
    for (const GoodsUse *goods : all) {
        const double amount = goods->used.value(tara.id);
        if (amount > 0)
            filling.layers.append({goods->posnum, amount,
                                   GoodsLook::of(shown.goodsOrdinal(goods->posnum).value_or(0))});
    }
    return filling;
}

double Filling::amount() const
{
    double amount = 0.0;
    for (const Layer &layer : layers)
        amount += layer.amount;
    return amount;
}

} // namespace till
