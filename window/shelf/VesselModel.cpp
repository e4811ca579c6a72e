#include "window/shelf/VesselModel.h"

#include "till/view/DisplayText.h"
#include "till/view/TaraText.h"
#include "window/look/Paints.h"

#include <algorithm>

namespace till {

namespace {

const Filling::Layer *layerOf(const Filling &filling, int posnum)
{
    const auto found =
        std::find_if(filling.layers.cbegin(), filling.layers.cend(),
                     [=](const Filling::Layer &layer) { return layer.posnum == posnum; });
    return found == filling.layers.cend() ? nullptr : &*found;
}

//! Every layer of both at the amount between the two; what goes away lies on top.
Filling between(const Filling &before, const Filling &now, double progress)
{
    const auto mixed = [=](double from, double to) { return from + (to - from) * progress; };
    Filling filling{now.posnum, mixed(before.capacity, now.capacity), {}};
    for (Filling::Layer layer : now.layers) {
        const Filling::Layer *const old = layerOf(before, layer.posnum);
        layer.amount = mixed(old ? old->amount : 0.0, layer.amount);
        filling.layers.append(layer);
    }
    for (Filling::Layer layer : before.layers) {
        if (layerOf(now, layer.posnum))
            continue;
        layer.amount = mixed(layer.amount, 0.0);
        filling.layers.append(layer);
    }
    return filling;
}

} // namespace

VesselModel::VesselModel(const Translator &translator)
    : m_translator(translator)
{
}

QList<VesselModel::Vessel> VesselModel::vesselsOf(const ShownReceipt *shown) const
{
    QList<Vessel> vessels;
    if (!shown)
        return vessels;
    for (const TaraUse &tara : shown->taras().taras) {
        const auto line = shown->receipt().line(tara.posnum);
        if (!line || line->isStornoed())
            continue;
        const Filling filling = Filling::of(*shown, tara);
        vessels.append({tara.posnum, printable(line->article().name), filling, filling});
    }
    return vessels;
}

bool VesselModel::hasSameVessels(const QList<Vessel> &others) const
{
    return std::equal(m_vessels.cbegin(), m_vessels.cend(), others.cbegin(), others.cend(),
                      [](const Vessel &one, const Vessel &other) {
                          return one.posnum == other.posnum && one.name == other.name;
                      });
}

//! What was in \a vessel up to now; nothing when it is a new one.
Filling VesselModel::fillingBefore(const Vessel &vessel) const
{
    const auto old = std::find_if(m_vessels.cbegin(), m_vessels.cend(), [&](const Vessel &known) {
        return known.posnum == vessel.posnum && known.name == vessel.name;
    });
    return old == m_vessels.cend() ? Filling{vessel.posnum, vessel.now.capacity, {}} : old->now;
}

void VesselModel::show(const std::shared_ptr<const ShownReceipt> &receipt, bool moves)
{
    QList<Vessel> vessels = vesselsOf(receipt.get());
    const bool isSame = hasSameVessels(vessels);
    QList<int> moving;
    for (qsizetype row = 0; row < vessels.size(); ++row) {
        const Filling before = isSame ? m_vessels[row].now : fillingBefore(vessels[row]);
        if (!(before == vessels[row].now))
            moving.append(static_cast<int>(row));
        if (moves)
            vessels[row].before = before;
    }
    if (!isSame)
        beginResetModel();
    m_shown = receipt;
    m_vessels = std::move(vessels);
    m_moving = moves ? moving : QList<int>();
    m_progress = moves ? 0.0 : 1.0;
    const bool lit = lightsAny();
    findFirstLit();
    const double greatest = m_greatest;
    m_greatest = 0.0;
    for (const Vessel &vessel : std::as_const(m_vessels))
        m_greatest = std::max(m_greatest, vessel.now.capacity);
    if (!isSame)
        endResetModel();
    else if (greatest != m_greatest || lit != lightsAny())
        tellAll();
    else
        for (const int row : std::as_const(moving))
            tellChanged(row);
}

void VesselModel::setProgress(double progress)
{
    m_progress = progress;
    const QList<int> moving = progress < 1.0 ? m_moving : std::exchange(m_moving, {});
    for (const int row : moving)
        tellChanged(row);
}

void VesselModel::translate(const Translator &translator)
{
    m_translator = translator;
    tellAll();
}

void VesselModel::setLit(const QSet<int> &goods)
{
    if (m_lit == goods)
        return;
    m_lit = goods;
    findFirstLit();
    tellAll();
}

void VesselModel::findFirstLit()
{
    const auto isLitIn = [this](const Vessel &vessel) {
        return std::any_of(vessel.now.layers.cbegin(), vessel.now.layers.cend(),
                           [this](const Filling::Layer &layer) { return isLit(layer.posnum); });
    };
    const auto found = std::find_if(m_vessels.cbegin(), m_vessels.cend(), isLitIn);
    m_firstLit = found == m_vessels.cend() ? -1 : static_cast<int>(found - m_vessels.cbegin());
}

void VesselModel::tellAll()
{
    if (!m_vessels.isEmpty())
        Q_EMIT dataChanged(index(0), index(static_cast<int>(m_vessels.size()) - 1));
}

Filling VesselModel::fillingAt(int row) const
{
    const Vessel &vessel = m_vessels[row];
    return m_progress < 1.0 ? between(vessel.before, vessel.now, m_progress) : vessel.now;
}

Piece VesselModel::fillTextAt(int row) const
{
    const TaraText text(m_translator, m_shown->receipt(), m_shown->index());
    return text.fillOf(*m_shown->index().tara(posnumAt(row)));
}

QString VesselModel::amountsAt(int row) const
{
    const TaraText text(m_translator, m_shown->receipt(), m_shown->index());
    return text.amountsOf(*m_shown->index().tara(posnumAt(row)));
}

int VesselModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_vessels.size());
}

QVariant VesselModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Vessel &vessel = m_vessels[index.row()];
    if (role == Qt::DisplayRole)
        return QStringLiteral("%1 %2").arg(vessel.posnum).arg(vessel.name);
    if (role != Qt::ToolTipRole && role != Qt::AccessibleTextRole)
        return {};
    const TaraText text(m_translator, m_shown->receipt(), m_shown->index());
    return QStringLiteral("%1 %2\n%3")
        .arg(vessel.posnum)
        .arg(vessel.name, plainText(text.figuresOf(*m_shown->index().tara(vessel.posnum))));
}

} // namespace till
