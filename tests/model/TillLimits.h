#ifndef TESTS_MODEL_TILLLIMITS_H
#define TESTS_MODEL_TILLLIMITS_H

#include "tests/model/Command.h"
#include "tests/model/Rules.h"

#include <string>
#include <vector>

// What the till takes of what the model does.

namespace model {

//! Whether the till can do with \a lines, which \a command picks, what the model does.
bool tillTakes(const Command &command, const std::vector<PositionPtr> &lines);

//! Whether a catalogue of the till can have \a article.
bool isCatalogued(const Article &article);

//! The article that \a command adds.
const Article &articleOf(const Command &command);

//! \a quantity as a cashier types it.
std::string typed(double quantity);

} // namespace model

#endif // TESTS_MODEL_TILLLIMITS_H
