#include "bench/Pairs.h"
#include "bench/Records.h"

#include <log4qt/logger.h>

#include <cmath>
#include <utility>

namespace bench {

namespace {

using Taras = QList<QSharedPointer<TaraInfo>>;

//! First fit.
template <Floor Kind>
void fill(const Taras &taras, PackagingInfo &info, double quantity)
{
    constexpr double tolerance = 0.0005;
    double delta = quantity;
    for (const double used : std::as_const(info.usedTara))
        delta -= used;
    for (const auto &tara : taras) {
        if (std::abs(delta) < tolerance)
            break;
        if (!(tara->freeCapacity > tolerance && delta > tolerance))
            continue;
        const double amount = tara->freeCapacity < delta ? tara->freeCapacity : delta;
        if constexpr (Kind == Floor::WithLogLines)
            logger().info(
                QStringLiteral("Изменение использованной позицией %1 ёмкости тары %2 на %3"),
                info.posnum, tara->posnum, toLogText(amount));
        tara->freeCapacity -= amount;
        info.usedTara[tara->id] += amount;
        delta -= amount;
    }
}

Taras makeTaras(int n, double freeCapacity)
{
    Taras taras;
    const Records records(2 * n);
    for (const TaraInfo &tara : records.taras)
        taras.append(QSharedPointer<TaraInfo>(
            new TaraInfo{tara.posnum, tara.id, freeCapacity, freeCapacity}));
    return taras;
}

bool equal(const Taras &left, const Taras &right)
{
    for (qsizetype place = 0; place < left.size(); ++place) {
        if (!(*left[place] == *right[place]))
            return false;
    }
    return left.size() == right.size();
}

//! Goods that find room in the last tara only; each call pours in one unit more.
template <Floor Kind>
class FillLast
{
public:
    explicit FillLast(int n)
        : m_byHand(makeTaras(n, 0))
    {
        m_plugin.taraList = makeTaras(n, 0);
        m_plugin.taraList.constLast()->freeCapacity = ocean;
        m_byHand.constLast()->freeCapacity = ocean;
    }

    void measured() { m_plugin.modifyPackagingUsedCapacity(m_info, ++m_poured); }
    void byHand() { fill<Kind>(m_byHand, m_infoByHand, ++m_pouredByHand); }

    bool same()
    {
        measured();
        byHand();
        return m_info->usedTara.size() == 1 && *m_info == m_infoByHand
               && equal(m_plugin.taraList, m_byHand);
    }

private:
    static constexpr double ocean = 1e9;
    Plugin m_plugin;
    QSharedPointer<PackagingInfo> m_info = QSharedPointer<PackagingInfo>::create();
    double m_poured = 0;
    Taras m_byHand;
    PackagingInfo m_infoByHand;
    double m_pouredByHand = 0;
};

//! Goods that fill all n taras.
template <Floor Kind>
class FillAll
{
public:
    explicit FillAll(int n)
        : m_byHand(makeTaras(n, 0.5))
    {
        m_plugin.taraList = makeTaras(n, 0.5);
    }

    void measured() { m_plugin.modifyPackagingUsedCapacity(m_info, ocean); }
    void byHand() { fill<Kind>(m_byHand, m_infoByHand, ocean); }

    void rearm()
    {
        empty(m_plugin.taraList, *m_info);
        empty(m_byHand, m_infoByHand);
    }

    bool same()
    {
        measured();
        byHand();
        return m_info->usedTara.size() == m_byHand.size() && *m_info == m_infoByHand
               && equal(m_plugin.taraList, m_byHand);
    }

private:
    static void empty(const Taras &taras, PackagingInfo &info)
    {
        info.usedTara.clear();
        for (const auto &tara : taras)
            tara->freeCapacity = tara->capacity;
    }

    static constexpr double ocean = 1e9;
    Plugin m_plugin;
    QSharedPointer<PackagingInfo> m_info = QSharedPointer<PackagingInfo>::create();
    Taras m_byHand;
    PackagingInfo m_infoByHand;
};

} // namespace

void addFills(Pairs &pairs)
{
    for (const int n : {10, 100, 1000}) {
        addPair<FillLast<Floor::Bare>>(pairs, "fillLast", n, 100);
        addPair<FillLast<Floor::WithLogLines>>(pairs, "fillLastLogged", n, 100);
    }
    for (const int n : {10, 100}) {
        addPair<FillAll<Floor::Bare>>(pairs, "fillAll", n, 10);
        addPair<FillAll<Floor::WithLogLines>>(pairs, "fillAllLogged", n, 10);
    }
}

} // namespace bench
