#include "till/course/PositionNotes.h"

namespace till {

namespace {

QJsonObject describe(const LineRecord &line, Kopecks sum)
{
    const ArticleData &article = line.article;
    return {{"position", line.posnum},
            {"article", article.code},
            {"name", article.name},
            {"price", article.price},
            {"taraMode", article.taraMode},
            {"taraCapacity", article.taraCapacity},
            {"pack", article.pack},
            {"unit", article.unit},
            {"count", line.count},
            {"base", line.base},
            {"sum", sum},
            {"group", line.groupId},
            {"stornoed", line.stornoed}};
}

} // namespace

PositionNotes::PositionNotes(Notes &notes)
    : m_notes(notes)
{
}

void PositionNotes::tell(const Position &position)
{
    if (!m_notes.wantsStates())
        return;
    const LineRecord line = position.record();
    m_told.insert(line.posnum, line);
    m_notes.add("position", describe(line, position.sum()));
}

void PositionNotes::tellChanged(const Receipt &receipt)
{
    if (!m_notes.wantsStates())
        return;
    const auto lines = receipt.lines();
    for (const auto &position : lines) {
        const auto told = m_told.constFind(position->getPosnum());
        if (told == m_told.cend() || *told != position->record())
            tell(*position);
    }
}

} // namespace till
