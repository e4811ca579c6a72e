#ifndef TESTS_REGISTRY_PLACEMENTMODEL_H
#define TESTS_REGISTRY_PLACEMENTMODEL_H

#include <cstdint>
#include <cstdlib>
#include <map>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

/*!
 * How goods are placed into tara, in whole numbers of some small unit: an oracle for the plugin,
 * which shares nothing with it. Whole numbers know no rounding, so that the plugin's doubles can be
 * held against them exactly when the unit is a power of two.
 */
namespace model {

using Units = std::int64_t;

struct Tara
{
    int number = 0;
    std::string name;
    Units capacity = 0;
    Units room = 0;

    bool operator==(const Tara &) const = default;
};

//! What the goods use, by the name of the tara.
using Shares = std::map<std::string, Units>;

//! That much went into the tara (or came out of it, below 0).
struct Move
{
    int tara = 0;
    Units amount = 0;

    bool operator==(const Move &) const = default;
};

//! Amounts of at least \a noticeable units count; smaller ones are nothing.
class Store
{
public:
    explicit Store(Units noticeable)
        : m_noticeable(noticeable)
    {
    }

    std::vector<Tara> shelf;

    void resize(Tara &tara, Units capacity) const
    {
        const Units held = tara.capacity - tara.room;
        if (std::llabs(capacity - tara.capacity) >= m_noticeable) {
            tara.capacity = capacity;
            tara.room = capacity - held;
        }
    }

    //! Brings the sum of \a shares towards \a wanted as far as the tara allow.
    std::vector<Move> place(Shares &shares, Units wanted)
    {
        Units placed = 0;
        for (const auto &share : shares)
            placed += share.second;
        return wanted >= placed ? fill(shares, wanted - placed) : drain(shares, placed - wanted);
    }

private:
    std::vector<Move> fill(Shares &shares, Units missing)
    {
        std::vector<Move> moves;
        for (Tara &tara : shelf) {
            if (missing < m_noticeable)
                break;
            if (tara.room < m_noticeable)
                continue;
            const Units poured = tara.room < missing ? tara.room : missing;
            missing -= poured;
            moves.push_back(shift(tara, shares, poured));
        }
        return moves;
    }

    std::vector<Move> drain(Shares &shares, Units surplus)
    {
        std::vector<Move> moves;
        for (Tara &tara : shelf) {
            const Units over = -tara.room;
            if (surplus < m_noticeable)
                break;
            if (over < m_noticeable || shares.count(tara.name) == 0)
                continue;
            const Units taken = over < surplus ? over : surplus;
            surplus -= taken;
            moves.push_back(shift(tara, shares, -taken));
        }
        return moves;
    }

    static Move shift(Tara &tara, Shares &shares, Units amount)
    {
        tara.room -= amount;
        shares[tara.name] += amount;
        return {tara.number, amount};
    }

    Units m_noticeable;
};

inline std::ostream &operator<<(std::ostream &out, const Tara &tara)
{
    return out << "tara " << tara.number << ' ' << tara.name << " capacity " << tara.capacity
               << " room " << tara.room;
}

inline std::ostream &operator<<(std::ostream &out, const Move &move)
{
    return out << move.amount << " into " << move.tara;
}

} // namespace model

#endif // TESTS_REGISTRY_PLACEMENTMODEL_H
