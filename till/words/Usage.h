#ifndef TILL_WORDS_USAGE_H
#define TILL_WORDS_USAGE_H

#include "till/language/Translator.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

#include <algorithm>

namespace till {

//! How something is typed, with what stands behind its name: a command, or what can be expected.
struct Usage
{
    static constexpr int any = 1000; //!< as many words as one likes

    QString name;
    Message words; //!< behind the name, for a person
    Message help;
    int atLeast; //!< number of words behind the name
    int atMost;

    QString text(const Translator &translator) const
    {
        return (name + ' ' + translator.text(words)).trimmed();
    }
    bool allows(const QStringList &behind) const
    {
        return behind.size() >= atLeast && behind.size() <= atMost;
    }
};

//! Words that a person types as they stand, in every language.
inline Message verbatim(const QString &words)
{
    return {tr::Tr(QString(), words), {}};
}

//! The row of \a table, which have a `usage` each, with that name in any letter case; null when
//! there is none.
template <typename Row>
const Row *rowCalled(const QString &name, const QList<Row> &table)
{
    const auto found = std::find_if(table.cbegin(), table.cend(), [&name](const Row &row) {
        return row.usage.name == name.toLower();
    });
    return found == table.cend() ? nullptr : &*found;
}

} // namespace till

#endif // TILL_WORDS_USAGE_H
