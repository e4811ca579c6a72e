#ifndef WINDOW_LOOK_FILLING_H
#define WINDOW_LOOK_FILLING_H

#include "window/look/GoodsLook.h"
#include "window/look/ShownReceipt.h"

#include <QtCore/QList>

namespace till {

//! What is in a tara, from the bottom, for whoever draws it. Amounts are in base units.
struct Filling
{
    struct Layer
    {
        int posnum = 0; //!< of the goods
        double amount = 0.0;
        GoodsLook look;

        bool operator==(const Layer &other) const = default;
    };

    int posnum = 0; //!< of the tara
    double capacity = 0.0;
    QList<Layer> layers;

    //! What \a shown notes of its \a tara.
    static Filling of(const ShownReceipt &shown, const TaraUse &tara);

    //! Of all layers together, which is more than the capacity of an over-full tara.
    double amount() const;
    bool operator==(const Filling &other) const = default;
};

} // namespace till

#endif // WINDOW_LOOK_FILLING_H
