#ifndef WINDOW_SHELF_VESSELMODEL_H
#define WINDOW_SHELF_VESSELMODEL_H

#include "till/language/Translator.h"
#include "till/view/TextPage.h"
#include "window/look/Filling.h"

#include <QtCore/QAbstractListModel>
#include <QtCore/QSet>

#include <memory>

namespace till {

//! The taras of a receipt that are not stornoed, a vessel each, with what is in them. A change can
//! be shown on its way: between what was there before it and what is there now.
class VesselModel final : public QAbstractListModel
{
public:
    explicit VesselModel(const Translator &translator);

    //! Shows the taras of \a receipt, which may be null. Those that changed are on their way from
    //! what they were when \a moves, and there at once otherwise.
    void show(const std::shared_ptr<const ShownReceipt> &receipt, bool moves);
    //! How far changes are on their way, from 0 to 1, where they arrived.
    void setProgress(double progress);
    bool isMoving() const { return !m_moving.isEmpty(); }

    void translate(const Translator &translator);
    //! Lights up what is in the vessels of the goods with these numbers.
    void setLit(const QSet<int> &goods);

    //! What is in a vessel as it is seen now.
    Filling fillingAt(int row) const;
    //! Its figures: how full it is, and what is used of its capacity.
    Piece fillTextAt(int row) const;
    QString amountsAt(int row) const;
    bool isLit(int goods) const { return m_lit.contains(goods); }
    //! Whether any of those goods are in a vessel.
    bool lightsAny() const { return m_firstLit >= 0; }
    //! The first vessel that they are in, or -1.
    int firstLit() const { return m_firstLit; }
    int posnumAt(int row) const { return m_vessels[row].posnum; }
    //! The greatest capacity of all.
    double greatestCapacity() const { return m_greatest; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    struct Vessel
    {
        int posnum = 0;
        QString name;
        Filling before;
        Filling now;
    };

    QList<Vessel> vesselsOf(const ShownReceipt *shown) const;
    Filling fillingBefore(const Vessel &vessel) const;
    bool hasSameVessels(const QList<Vessel> &others) const;
    void tellChanged(int row) { Q_EMIT dataChanged(index(row), index(row)); }
    void tellAll();
    void findFirstLit();

    Translator m_translator;
    std::shared_ptr<const ShownReceipt> m_shown;
    QList<Vessel> m_vessels;
    QList<int> m_moving; //!< rows
    double m_progress = 1.0;
    double m_greatest = 0.0;
    QSet<int> m_lit;
    int m_firstLit = -1;
};

} // namespace till

#endif // WINDOW_SHELF_VESSELMODEL_H
