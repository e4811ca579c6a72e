#include "tests/model/TillLimits.h"

#include <algorithm>
#include <charconv>

namespace model {

namespace {

constexpr double greatestQuantity = 999999.999; // of a position of the till

//! Whether the till takes such a quantity.
bool isTyped(double quantity)
{
    return quantity >= 0 && quantity <= greatestQuantity
           && static_cast<double>(static_cast<long long>(quantity * 1000 + 0.5)) / 1000 == quantity;
}

bool isTyped(const Command &command)
{
    switch (command.verb) {
    case Verb::Add:
        return command.quantity > 0 && isTyped(command.quantity);
    case Verb::Quantity:
        return isTyped(command.quantity);
    case Verb::Split:
        return std::all_of(command.parts.begin(), command.parts.end(),
                           [](double part) { return part > 0 && isTyped(part); });
    default:
        return true;
    }
}

//! Whether the position has as much as the parts: the till looks at thousandths.
bool hasParts(const Position &position, const std::vector<double> &parts)
{
    double left = position.count;
    for (const double part : parts)
        left -= part;
    return left * 1000 > -0.5;
}

bool canUnite(const std::vector<PositionPtr> &lines)
{
    double count = 0;
    for (const PositionPtr &line : lines)
        count += line->count;
    const auto isAlike = [&](const PositionPtr &line) {
        return line->article == lines.front()->article;
    };
    return lines.size() > 1 && count <= greatestQuantity
           && std::all_of(lines.begin(), lines.end(), isAlike);
}

//! Whether the till can do with \a lines what the model does.
bool takes(const Command &command, const std::vector<PositionPtr> &lines)
{
    if (command.verb == Verb::Add)
        return isCatalogued(articleOf(command));
    if (lines.empty())
        return true;
    if (command.verb == Verb::Split)
        return lines.size() == 1 && !command.parts.empty()
               && hasParts(*lines.front(), command.parts);
    return command.verb != Verb::Unite || canUnite(lines);
}

} // namespace

bool tillTakes(const Command &command, const std::vector<PositionPtr> &lines)
{
    return isTyped(command) && takes(command, lines);
}

bool isCatalogued(const Article &article)
{
    constexpr int tara = 1;
    constexpr int lastMode = 2;
    return article.taraMode <= lastMode && isTyped(article.capacity) && isTyped(article.pack)
           && (article.taraMode != tara || article.capacity > 0);
}

const Article &articleOf(const Command &command)
{
    return articles.at(static_cast<std::size_t>(command.which) % articles.size());
}

std::string typed(double quantity)
{
    char text[64];
    const auto end =
        std::to_chars(text, text + sizeof text, quantity, std::chars_format::fixed).ptr;
    return {text, end};
}

} // namespace model
