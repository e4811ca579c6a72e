#include "till/receipt/RecordFault.h"

#include "till/goods/Limits.h"

#include <QtCore/QSet>

#include <cmath>

namespace till {

namespace {

//! More than a catalogue can say of one piece, in base units.
constexpr double greatestPack = 1e9;

//! What is not a number is none either.
bool isBase(double base)
{
    return std::abs(base) <= greatestCount * greatestPack;
}

Fault outOfRange(const LineRecord &line, const char *what)
{
    return {{}, QStringLiteral("position %1 has a %2 out of range").arg(line.posnum).arg(what)};
}

Fault totalOutOfRange()
{
    return {{}, QStringLiteral("its total is out of range")};
}

} // namespace

Result<> check(const LineRecord &line, int nextPosnum)
{
    if (line.posnum < 1)
        return Fault{{}, QStringLiteral("%1 is no number of a position").arg(line.posnum)};
    if (line.posnum >= nextPosnum)
        return Fault{
            {}, QStringLiteral("position %1 has a number that was not given yet").arg(line.posnum)};
    const ArticleData &article = line.article;
    if (article.price < 0 || article.price > greatestSum)
        return outOfRange(line, "price");
    if (!isCount(std::abs(line.count)) || !isBase(line.base))
        return outOfRange(line, "quantity");
    if (!(article.pack > 0.0 && article.pack <= greatestPack))
        return outOfRange(line, "pack");
    if (!(article.taraCapacity >= 0.0 && article.taraCapacity <= greatestPack))
        return outOfRange(line, "tara capacity");
    if (!isSum(static_cast<double>(article.price) * line.count))
        return outOfRange(line, "sum");
    return {};
}

Result<> check(const ReceiptRecord &record)
{
    QSet<int> numbers;
    for (const LineRecord &line : record.lines) {
        if (const Result<> checked = check(line, record.nextPosnum); !checked)
            return checked;
        if (numbers.contains(line.posnum))
            return Fault{{}, QStringLiteral("position %1 is there twice").arg(line.posnum)};
        numbers.insert(line.posnum);
    }
    return totalOf(record).then([](Kopecks) { return Result<>(); });
}

Result<> checkTotal(Kopecks total)
{
    if (isSum(static_cast<double>(total)))
        return {};
    return totalOutOfRange();
}

Result<Kopecks> totalOf(const ReceiptRecord &record)
{
    Kopecks total = 0;
    for (const LineRecord &line : record.lines) {
        if (!line.stornoed && qAddOverflow(total, line.sum(), &total))
            return totalOutOfRange();
    }
    return checkTotal(total).then([total] { return Result<Kopecks>(total); });
}

} // namespace till
