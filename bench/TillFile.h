#ifndef BENCH_TILLFILE_H
#define BENCH_TILLFILE_H

#include "till/database/Table.h"
#include "till/storage/Storage.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace bench {

//! The rows that one command of the till writes.
struct CommandRows
{
    till::Table::Row header;
    till::Table::Row line; //!< the one that the command changes
    till::Table::Row data; //!< the plugin data that it changes
    QList<till::JournalEntry> journal;
};

/*!
 * A database of the till's, written with SQLite alone: opened and committed as durably as the till
 * does. Ends the process when SQLite reports an error.
 */
class TillFile
{
public:
    explicit TillFile(const QString &path);
    ~TillFile();
    Q_DISABLE_COPY_MOVE(TillFile)

    //! Writes \a rows in one transaction; when it returns, they are on the disk.
    void commit(const CommandRows &rows);

    //! Every row of every table, as text.
    QStringList contents();

private:
    enum Statement { Begin, Line, Data, Header, Journal, Commit };

    sqlite3_stmt *prepare(const char *sql);
    void put(sqlite3_stmt *statement, const till::Table::Row &row);
    void bind(sqlite3_stmt *statement, int parameter, const QVariant &value);
    void bind(sqlite3_stmt *statement, int parameter, const QString &text);
    void bind(sqlite3_stmt *statement, int parameter, const QByteArray &bytes);
    void run(sqlite3_stmt *statement);
    void check(int code);

    sqlite3 *m_database = nullptr;
    std::vector<sqlite3_stmt *> m_statements;
};

} // namespace bench

#endif // BENCH_TILLFILE_H
