#include "bench/TillFile.h"

#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>

namespace bench {

TillFile::TillFile(const QString &path)
{
    check(sqlite3_open(path.toUtf8().constData(), &m_database));
    for (const char *setting : {"PRAGMA locking_mode = EXCLUSIVE", "PRAGMA synchronous = FULL",
                                "PRAGMA journal_mode = WAL"})
        check(sqlite3_exec(m_database, setting, nullptr, nullptr, nullptr));
    for (const char *sql :
         {"BEGIN IMMEDIATE",
          "INSERT OR REPLACE INTO positions (receipt, place, posnum, code, name, price, taraMode, "
          "taraCapacity, pack, unit, count, base, groupId, stornoed) "
          "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
          "INSERT OR REPLACE INTO pluginData (receipt, plugin, key, value, types, digest) "
          "VALUES (?, ?, ?, ?, ?, ?)",
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

    sqlite3_stmt *line = m_statements[Line];
    const till::ArticleData &article = rows.line.article;
    sqlite3_bind_int64(line, 1, rows.receipt);
    sqlite3_bind_int64(line, 2, rows.place);
    sqlite3_bind_int(line, 3, rows.line.posnum);
    bind(line, 4, article.code);
    bind(line, 5, article.name);
    sqlite3_bind_int64(line, 6, article.price);
    sqlite3_bind_int(line, 7, article.taraMode);
    sqlite3_bind_double(line, 8, article.taraCapacity);
    sqlite3_bind_double(line, 9, article.pack);
    bind(line, 10, article.unit);
    sqlite3_bind_double(line, 11, rows.line.count);
    sqlite3_bind_double(line, 12, rows.line.base);
    bind(line, 13, rows.line.groupId);
    sqlite3_bind_int(line, 14, rows.line.stornoed ? 1 : 0);
    run(line);

    sqlite3_stmt *data = m_statements[Data];
    sqlite3_bind_int64(data, 1, rows.receipt);
    bind(data, 2, rows.plugin);
    bind(data, 3, rows.key);
    bind(data, 4, rows.data.bytes);
    bind(data, 5, rows.data.types);
    bind(data, 6, rows.data.digest);
    run(data);

    sqlite3_stmt *journal = m_statements[Journal];
    for (const till::JournalEntry &entry : rows.journal) {
        sqlite3_bind_int64(journal, 1, rows.receipt);
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
    for (const char *sql : {"SELECT * FROM receipts ORDER BY id", "SELECT * FROM positions",
                            "SELECT * FROM softChecks",
                            "SELECT receipt, plugin, key, hex(value), types, hex(digest) FROM "
                            "pluginData ORDER BY receipt, plugin, key",
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
