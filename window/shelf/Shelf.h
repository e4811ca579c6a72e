#ifndef WINDOW_SHELF_SHELF_H
#define WINDOW_SHELF_SHELF_H

#include "window/shelf/VesselModel.h"

#include <QtCore/QVariantAnimation>
#include <QtWidgets/QListView>

namespace till {

/*!
 * The shelf with the taras of a receipt: what was poured into which, and what capacity is free. One
 * or several can be selected.
 */
class Shelf final : public QListView
{
public:
    explicit Shelf(const Translator &translator, QWidget *parent = nullptr);

    //! Shows \a receipt, which may be null. What changes moves there, unless that is switched off.
    void show(const std::shared_ptr<const ShownReceipt> &receipt);
    void translate(const Translator &translator);
    //! Whether changes move smoothly.
    void setMoving(bool moves);
    bool isMoving() const { return m_moves; }

    VesselModel &vessels() { return m_vessels; }
    //! The goods in the selected vessels.
    QSet<int> goodsOfSelected() const;
    //! The goods with these numbers light up in each vessel, of which the first comes into view.
    void setLit(const QSet<int> &goods);

    //! Told when another selection was made.
    std::function<void()> selected;

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void sizeVessels();

    using QListView::show;

    VesselModel m_vessels;
    QVariantAnimation m_motion;
    bool m_moves = true;
    QString m_nothing; //!< what stands there without a tara
};

} // namespace till

#endif // WINDOW_SHELF_SHELF_H
