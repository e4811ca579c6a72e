#ifndef TESTS_MODEL_SHOP_H
#define TESTS_MODEL_SHOP_H

#include <array>
#include <cstdint>
#include <string>

// What the model and the real host have in common: the shop's articles and the names of things.

namespace model {

//! An article of the shop.
struct Article
{
    const char *code;
    int taraMode;
    double capacity;          //!< tara capacity of one piece
    const char *capacityText; //!< the catalogue gives the capacity as this text; null: as a number
    double pack;              //!< base units in one piece
    bool isInCatalogue;       //!< the till's own catalogue has it, so that a script can add it
};

inline constexpr std::array<Article, 16> articles{{
    {"BEER", 2, 0, nullptr, 1, true},
    {"PET1", 1, 1, nullptr, 1, true},
    {"CAN3", 1, 3, nullptr, 1, true},
    {"DARK", 2, 0, nullptr, 1, true},
    {"PET05", 1, 0.5, nullptr, 1, true},
    {"PET15", 1, 1.5, nullptr, 1, true},
    {"BEER3", 2, 0, nullptr, 3, true},
    {"BUCKET5", 1, 5, nullptr, 1, true},
    {"CHIPS", 0, 0, nullptr, 1, true},
    {"CRATE20", 0, 0, nullptr, 20, true},
    {"SIXPACK", 1, 0.5, nullptr, 6, false},
    {"FLASK", 1, 0.1, "0.1", 1, false},
    {"RIDDLE", 1, 0, "no number", 1, false},
    {"SACHET", 2, 0, nullptr, 0.001, false},
    {"FUTURE", 3, 1, nullptr, 1, false},
    {"THIMBLE", 1, 0.0004, nullptr, 1, false},
}};

/*!
 * The \a number-th identifier of a run, from 1. No two of a run are the same; their alphabetical
 * order has nothing to do with the order in which they are given out, and differs from run to run.
 */
std::string identifier(std::uint64_t salt, int number);

} // namespace model

#endif // TESTS_MODEL_SHOP_H
