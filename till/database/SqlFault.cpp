#include "till/database/SqlFault.h"

#include <QtSql/QSqlError>

namespace till {

namespace {

//! Result codes of SQLite that people can do something about.
enum Code : int {
    Busy = 5,
    Locked = 6,
    ReadOnly = 8,
    Corrupt = 11,
    Full = 13,
    CannotOpen = 14,
    NotADatabase = 26,
};

//! What \a code means to the people at the register; empty when it is nothing they know.
QString meaningOf(int code)
{
    switch (code) {
    case Busy:
    case Locked:
        return QStringLiteral("another program is writing to the database");
    case ReadOnly:
        return QStringLiteral("the database cannot be written");
    case CannotOpen:
        return QStringLiteral("the database cannot be opened");
    case Corrupt:
        return QStringLiteral("the database is damaged");
    case NotADatabase:
        return QStringLiteral("not a database of the till, or damaged");
    case Full:
        return QStringLiteral("the disk is full");
    default:
        return {};
    }
}

} // namespace

QString wayOutOfDamage()
{
    return QStringLiteral(
        "\"till check\" tells which receipts hold, \"till set-apart NUMBER\" leaves "
        "one out; or put a copy that was made before in its place");
}

QString wayBackFromDamage()
{
    return QStringLiteral("put a copy that was made before in its place; what can still be read, "
                          "\"till receipts\" and \"till receipt NUMBER\" show");
}

Fault faultOf(const QSqlError &error)
{
    // The low byte is the primary code; the rest tells details.
    const int code = error.nativeErrorCode().toInt() & 0xff;
    QString meaning = meaningOf(code);
    if (meaning.isEmpty())
        return {{}, error.databaseText()};
    if (code != Busy && code != Locked)
        meaning += QStringLiteral(" (%1)").arg(error.databaseText());
    return {{}, meaning, code == Corrupt ? wayOutOfDamage() : QString()};
}

} // namespace till
