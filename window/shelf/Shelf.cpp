#include "window/shelf/Shelf.h"

#include "window/shelf/VesselDelegate.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QScrollBar>

namespace till {

Shelf::Shelf(const Translator &translator, QWidget *parent)
    : QListView(parent)
    , m_vessels(translator)
{
    constexpr int motionMilliseconds = 250;
    setModel(&m_vessels);
    setItemDelegate(new VesselDelegate(this));
    setFlow(LeftToRight);
    setWrapping(false);
    setResizeMode(Adjust);
    setUniformItemSizes(true);
    setSelectionMode(ExtendedSelection);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    sizeVessels();
    translate(translator);
    m_motion.setStartValue(0.0);
    m_motion.setEndValue(1.0);
    m_motion.setDuration(motionMilliseconds);
    m_motion.setEasingCurve(QEasingCurve::InOutQuad);
    connect(&m_motion, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &progress) { m_vessels.setProgress(progress.toDouble()); });
    const auto tellSelected = [this] {
        if (selected)
            selected();
    };
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, tellSelected);
    connect(&m_vessels, &QAbstractItemModel::modelReset, this, tellSelected);
}

void Shelf::show(const std::shared_ptr<const ShownReceipt> &receipt)
{
    m_motion.stop();
    const int before = m_vessels.rowCount();
    m_vessels.show(receipt, m_moves && isVisible());
    if (m_vessels.rowCount() > before)
        scrollTo(m_vessels.index(m_vessels.rowCount() - 1));
    if (m_vessels.isMoving())
        m_motion.start();
}

void Shelf::translate(const Translator &translator)
{
    m_vessels.translate(translator);
    m_nothing = translator.text(told("till", "no tara in the receipt"));
    setAccessibleName(translator.text(told("till", "Shelf of tara")));
    viewport()->update();
}

void Shelf::setMoving(bool moves)
{
    m_moves = moves;
    if (moves)
        return;
    m_motion.stop();
    m_vessels.setProgress(1.0);
}

QSet<int> Shelf::goodsOfSelected() const
{
    QSet<int> goods;
    const QModelIndexList rows = selectionModel()->selectedRows();
    for (const QModelIndex &row : rows) {
        const Filling filling = m_vessels.fillingAt(row.row());
        for (const Filling::Layer &layer : filling.layers)
            goods.insert(layer.posnum);
    }
    return goods;
}

void Shelf::setLit(const QSet<int> &goods)
{
    m_vessels.setLit(goods);
    if (m_vessels.lightsAny())
        scrollTo(m_vessels.index(m_vessels.firstLit()));
}

void Shelf::sizeVessels()
{
    const QSize room = VesselDelegate::shortestRoom(font());
    setMinimumHeight(room.height() + horizontalScrollBar()->sizeHint().height() + 2 * frameWidth());
}

void Shelf::paintEvent(QPaintEvent *event)
{
    QListView::paintEvent(event);
    if (m_vessels.rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(viewport()->rect(), Qt::AlignCenter, m_nothing);
}

void Shelf::changeEvent(QEvent *event)
{
    QListView::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        sizeVessels();
}

} // namespace till
