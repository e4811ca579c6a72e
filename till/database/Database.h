#ifndef TILL_DATABASE_DATABASE_H
#define TILL_DATABASE_DATABASE_H

#include "till/database/DatabaseFile.h"
#include "till/result/Result.h"

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlQuery>

#include <map>
#include <memory>
#include <optional>

namespace till {

/*!
 * A connection to a database file. An operation that cannot be done leaves its fault, with the path
 * as the place, in `fault`.
 */
class Database
{
public:
    //! What a connection is for.
    enum class Access {
        Till,    //!< the one that writes: nobody else can have it meanwhile, but others may read
        Reading, //!< beside a till, or without one; nothing is ever written to the file, and no
                 //!< empty log is left beside it
    };

    /*!
     * Connects to the file at \a path; a till makes it, empty, when there is none, and checks one
     * that was left with a log, as after a kill.
     */
    static Result<std::unique_ptr<Database>> open(const QString &path, Access access);
    ~Database();
    Q_DISABLE_COPY_MOVE(Database)

    //! The path as it was given.
    QString path() const { return m_path; }

    //! Whether anything went wrong since `forgetFault` or `takeFault`.
    bool hasFailed() const { return m_fault.has_value(); }
    //! What went wrong last; only after something did.
    const Fault &fault() const { return *m_fault; }
    void forgetFault() { m_fault.reset(); }
    std::optional<Fault> takeFault() { return std::exchange(m_fault, std::nullopt); }
    //! Notes a fault of this database and returns false.
    bool fail(const QString &reason, const QString &remedy = {});

    /*!
     * Runs \a sql with \a values in place of its question marks. The statement is prepared once and
     * kept; the result is valid until the same text is run again. Null when it failed.
     */
    QSqlQuery *run(const QString &sql, const QVariantList &values = {});
    //! True while \a rows, a result of `run`, has one more row; false at the end and when reading
    //! failed, which `hasFailed` tells apart.
    bool next(QSqlQuery &rows);

    //! Runs \a sql once; nothing of it is kept.
    bool execute(const QString &sql);
    //! The first value of the first row; invalid when there is none, with the fault noted.
    QVariant valueOf(const QString &sql);

    bool begin();
    bool commit();
    //! Undoes what was done since `begin`; the fault stays as it was.
    void rollBack();

    //! Keeps what is committed in a log until it is folded in, so that a commit costs one wait for
    //! the disk and readers see a whole database meanwhile.
    bool keepLog();
    //! Brings what the log holds into the file, as far as no reader is in the way; nothing depends
    //! on it.
    void foldLog();

    //! SQLite's own check of the whole file. False, with the fault noted, when it finds one.
    bool checkFile();

    /*!
     * Writes a whole copy, as of now, to \a path, where there must be nothing. When it returns
     * true, the copy is on the disk, for its owner alone.
     */
    bool copyTo(const QString &path);

private:
    Database(const QString &path, Access access);

    bool prepare(Access access);
    bool claim();
    bool checkLeftOpen();
    bool connectToFile(Access access);
    bool connectToRead();
    bool connectAs(const QString &name, const QString &options);
    void disconnect();
    bool waitForOthers(bool waits);
    bool failWith(const QSqlError &error);

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
    std::optional<Fault> m_fault;
    DatabaseLock m_lock;
    QSqlDatabase m_database;
    std::map<QString, Statement> m_statements;
};

} // namespace till

#endif // TILL_DATABASE_DATABASE_H
