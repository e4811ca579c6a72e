#include "bench/TillFile.h"

#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>

namespace bench {

namespace {

//! What \a value holds when it is of that type, else null.
template <typename Type>
const Type *heldIf(const QVariant *value)
{
    return value->metaType() == QMetaType::fromType<Type>()
               ? static_cast<const Type *>(value->constData())
               : nullptr;
}

} // namespace

TillFile::TillFile(const QString &path)
{
    check(sqlite3_open(path.toUtf8().constData(), &m_database));
    for (const char *setting : {"PRAGMA synchronous = FULL", "PRAGMA journal_mode = WAL"})
        check(sqlite3_exec(m_database, setting, nullptr, nullptr, nullptr));
    for (const char *sql :
         {"BEGIN IMMEDIATE",
          "INSERT OR REPLACE INTO positions VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
          "INSERT INTO pluginData VALUES (?, ?, ?, ?, ?, ?, ?) ON CONFLICT DO UPDATE SET value = "
          "excluded.value, types = excluded.types, digest = excluded.digest",
          "INSERT INTO receipts VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?) ON CONFLICT DO UPDATE SET "
          "state = excluded.state, total = excluded.total, contents = excluded.contents, digest = "
          "excluded.digest",
          "INSERT INTO journal (receipt, depth, kind, json) VALUES (?, ?, ?, ?)", "COMMIT"})
        m_statements.push_back(prepare(sql));
}

TillFile::~TillFile()
{
    for (sqlite3_stmt *statement : m_statements)
        sqlite3_finalize(statement);
    sqlite3_close(m_database);
}

void TillFile::commit(const CommandRows &rows)
{
    run(m_statements[Begin]);

    put(m_statements[Line], rows.line);
    put(m_statements[Data], rows.data);
    put(m_statements[Header], rows.header);

    sqlite3_stmt *journal = m_statements[Journal];
    for (const till::JournalEntry &entry : rows.journal) {
        sqlite3_bind_int64(journal, 1, rows.header.values[0].toLongLong());
        sqlite3_bind_int(journal, 2, entry.depth);
        bind(journal, 3, entry.kind);
        bind(journal, 4, entry.json);
        run(journal);
    }

    run(m_statements[Commit]);
}

QStringList TillFile::contents()
{
    QStringList rows;
    for (const char *sql :
         {"SELECT id, type, state, orderNumber, nextPosnum, opened, ended, positions, "
          "total, hex(contents), hex(digest) FROM receipts ORDER BY id",
          "SELECT *, hex(digest) FROM positions", "SELECT *, hex(digest) FROM softChecks",
          "SELECT receipt, plugin, key, place, hex(value), types, hex(digest) FROM "
          "pluginData ORDER BY receipt, plugin, key, place",
          "SELECT id, receipt, depth, kind, typeof(json), CAST(json AS TEXT) "
          "FROM journal ORDER BY id"}) {
        sqlite3_stmt *statement = prepare(sql);
        while (sqlite3_step(statement) == SQLITE_ROW) {
            QStringList fields;
            for (int column = 0; column < sqlite3_column_count(statement); ++column)
                fields << QString::number(sqlite3_column_type(statement, column))
                       << QString::fromUtf8(reinterpret_cast<const char *>(
                              sqlite3_column_text(statement, column)));
            rows << fields.join(QLatin1Char('|'));
        }
        check(sqlite3_finalize(statement));
    }
    return rows;
}

sqlite3_stmt *TillFile::prepare(const char *sql)
{
    sqlite3_stmt *statement = nullptr;
    check(sqlite3_prepare_v2(m_database, sql, -1, &statement, nullptr));
    return statement;
}

void TillFile::put(sqlite3_stmt *statement, const till::Table::Row &row)
{
    int parameter = 0;
    for (const QVariant &value : row.values)
        bind(statement, ++parameter, value);
    bind(statement, ++parameter, row.digest);
    run(statement);
}

void TillFile::bind(sqlite3_stmt *statement, int parameter, const QVariant &value)
{
    if (const auto *text = heldIf<QString>(&value))
        bind(statement, parameter, *text);
    else if (const auto *bytes = heldIf<QByteArray>(&value))
        bind(statement, parameter, *bytes);
    else if (const auto *number = heldIf<double>(&value))
        sqlite3_bind_double(statement, parameter, *number);
    else
        sqlite3_bind_int64(statement, parameter, value.toLongLong());
}

// The rows outlive the statement's run, so that nothing is copied.

void TillFile::bind(sqlite3_stmt *statement, int parameter, const QString &text)
{
    // Of a null text too this is a pointer: a null one would be bound as NULL.
    sqlite3_bind_text16(statement, parameter, text.utf16(),
                        static_cast<int>(text.size() * sizeof(char16_t)), SQLITE_STATIC);
}

void TillFile::bind(sqlite3_stmt *statement, int parameter, const QByteArray &bytes)
{
    sqlite3_bind_blob(statement, parameter, bytes.constData(), static_cast<int>(bytes.size()),
                      SQLITE_STATIC);
}

void TillFile::run(sqlite3_stmt *statement)
{
    if (sqlite3_step(statement) != SQLITE_DONE)
        check(sqlite3_errcode(m_database));
    check(sqlite3_reset(statement));
}

void TillFile::check(int code)
{
    if (code == SQLITE_OK)
        return;
    std::fprintf(stderr, "SQLite: %s\n", sqlite3_errmsg(m_database));
    std::exit(1);
}

} // namespace bench
