#ifndef TILL_DATABASE_DATABASE_H
#define TILL_DATABASE_DATABASE_H

#include "till/database/DatabaseFile.h"
#include "till/result/Result.h"

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlQuery>

#include <functional>
#include <map>
#include <memory>
#include <type_traits>

namespace till {

//! A connection to a database file. The place of a fault is its path as it was given.
class Database
{
public:
    //! What a connection is for.
    enum class Access {
        Till,    //!< the one that writes: nobody else can have it meanwhile, but others may read
        Reading, //!< beside a till, or without one; nothing is ever written to the file, and no
                 //!< empty log is left beside it
    };

    using Check = std::function<Result<>(Database &database)>;

    /*!
     * Connects to the file at \a path; a till makes it, empty, when there is none. One that was
     * left with a log, as after a kill, it opens only if \a leftOpen finds nothing against that,
     * for in the end the log is brought into the file.
     */
    static Result<std::unique_ptr<Database>> open(const QString &path, Access access,
                                                  const Check &leftOpen = {});
    ~Database();
    Q_DISABLE_COPY_MOVE(Database)

    //! The path as it was given.
    QString path() const { return m_path; }

    //! A fault of this database.
    Fault fault(const QString &reason, const QString &remedy = {}) const
    {
        return {m_path, reason, remedy};
    }

    //! Runs \a sql with \a values in place of its question marks. The statement is prepared once
    //! and kept.
    Result<> run(const QString &sql, const QVariantList &values = {});
    /*!
     * The same, and gives \a take each row, up to the first for which it returns a fault; it need
     * not return anything. It may run other statements, but not the same. What could not be read
     * is told when all before it was taken.
     */
    template <typename Take>
    Result<> each(const QString &sql, const QVariantList &values, const Take &take)
    {
        return walk(sql, values, [&take](const QSqlQuery &row) -> Result<> {
            if constexpr (std::is_void_v<std::invoke_result_t<Take, const QSqlQuery &>>) {
                take(row);
                return {};
            } else {
                return take(row);
            }
        });
    }

    //! Runs these once, one after another; nothing of them is kept.
    Result<> execute(const QStringList &statements);
    //! The first value of the first row; invalid when there is no row.
    Result<QVariant> valueOf(const QString &sql);

    //! Does \a step, and keeps what it wrote: all of it, or nothing where there is a fault.
    Result<> inTransaction(const std::function<Result<>()> &step);
    //! From now on all is read as of one moment, the first look.
    Result<> holdStill() { return execute({QStringLiteral("BEGIN")}); }

    //! Keeps what is committed in a log until it is folded in, so that a commit costs one wait for
    //! the disk and readers see a whole database meanwhile. The database, which must be known to be
    //! the till's, is its owner's alone from now on.
    Result<> keepLog();
    //! Brings what the log holds into the file, as far as no reader is in the way; nothing depends
    //! on it.
    void foldLog();

    //! SQLite's own check of the whole file.
    Result<> checkFile();

    //! Writes a whole copy, as of now, to \a path, where there must be nothing. When it is done,
    //! the copy is on the disk, for its owner alone.
    Result<> copyTo(const QString &path);

private:
    using Take = std::function<Result<>(const QSqlQuery &row)>;

    Database(const QString &path, Access access);

    Result<> prepare(const Check &leftOpen);
    Result<> claim();
    Result<> connectToFile();
    bool connectToRead();
    bool connectAs(const QString &name, const QString &options);
    void disconnect();
    Result<QSqlQuery *> start(const QString &sql, const QVariantList &values);
    Result<> walk(const QString &sql, const QVariantList &values, const Take &take);
    Fault fault(const QSqlError &error) const;

    //! A statement that is kept. Its question marks got names: a named place Qt looks up, for a
    //! numbered one it makes a name each time.
    struct Statement
    {
        explicit Statement(const QSqlDatabase &database)
            : query(database)
        {
        }

        bool prepare(const QString &sql);

        QSqlQuery query;
        QStringList places; //!< the names, in their order
    };

    QString m_path;
    Access m_access;
    QString m_connection;
    DatabaseLock m_lock;
    QSqlDatabase m_database;
    std::map<QString, Statement> m_statements;
};

} // namespace till

#endif // TILL_DATABASE_DATABASE_H
