#ifndef TILL_RECEIPT_TARASTATE_H
#define TILL_RECEIPT_TARASTATE_H

#include "host/Document.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>

namespace till {

class Receipt;

//! Whether a plugin controls the tara of the receipt.
enum class TaraControl {
    Active,
    Suspended, //!< the plugin let go of the receipt
    Absent,    //!< there is no plugin
};

//! Whether a plugin that is there controls the tara of \a receipt, or lets go of it.
TaraControl controlOf(const Receipt &receipt);

//! What the plugin noted of one tara position.
struct TaraUse
{
    int posnum = 0;
    QString id;
    double capacity = 0.0;
    double free = 0.0; //!< below 0 when over-full

    bool operator==(const TaraUse &other) const = default;
};

//! What the plugin noted of one goods position: how much of it is in which tara, by the tara's id.
struct GoodsUse
{
    int posnum = 0;
    QMap<QString, double> used;

    bool operator==(const GoodsUse &other) const = default;

    //! What is in no tara of a position of \a base units; below 0 what is noted beyond that.
    double unplaced(double base) const;
};

/*!
 * The plugin's records as they stand in the receipt. The register knows the plugin only by these
 * data; missing or malformed data read as none.
 */
struct TaraState
{
    QList<TaraUse> taras;
    QList<GoodsUse> goods;

    //! Reads what the plugin called \a pluginId stored in \a data.
    static TaraState read(const Document::PluginData &data, const QString &pluginId);
};

//! Finds the records of a state at a cost that does not grow with it. The state must outlive it and
//! stay as it is.
class TaraIndex
{
public:
    explicit TaraIndex(const TaraState &state);

    //! The first record of that position, or null.
    const TaraUse *tara(int posnum) const { return m_taras.value(posnum); }
    const GoodsUse *goodsOf(int posnum) const { return m_goods.value(posnum); }

    //! The goods that are in the tara, in their order.
    QList<const GoodsUse *> goodsIn(const TaraUse &tara) const { return m_goodsIn.value(tara.id); }
    //! The taras that the goods are in, in the order of the taras; of those with one identifier the
    //! first.
    QList<const TaraUse *> tarasOf(const GoodsUse &goods) const;

private:
    QHash<int, const TaraUse *> m_taras;
    QHash<int, const GoodsUse *> m_goods;
    QHash<QString, const TaraUse *> m_tarasById;
    QHash<QString, QList<const GoodsUse *>> m_goodsIn;
};

} // namespace till

#endif // TILL_RECEIPT_TARASTATE_H
