#include "till/language/Nearest.h"

#include <QtCore/QList>

#include <algorithm>
#include <cstdlib>
#include <numeric>

namespace till {

namespace {

//! How many letters have to be changed, added or taken away to make one text of the other.
qsizetype distance(const QString &one, const QString &other)
{
    QList<qsizetype> row(other.size() + 1); // from what was read of one to each beginning of other
    std::iota(row.begin(), row.end(), 0);
    for (const QChar letter : one) {
        qsizetype diagonal = row[0]++;
        for (qsizetype i = 1; i < row.size(); ++i) {
            const qsizetype changed = diagonal + (letter == other[i - 1] ? 0 : 1);
            diagonal = row[i];
            row[i] = std::min({changed, row[i] + 1, row[i - 1] + 1});
        }
    }
    return row.last();
}

} // namespace

QString nearest(const QString &word, const QStringList &known)
{
    QString found;
    qsizetype least = std::max<qsizetype>(word.size() / 3, 1) + 1;
    for (const QString &candidate : known) {
        if (std::abs(candidate.size() - word.size()) >= least)
            continue;
        const qsizetype wrong = distance(word.toLower(), candidate.toLower());
        if (wrong < least) {
            least = wrong;
            found = candidate;
        }
    }
    return found;
}

} // namespace till
