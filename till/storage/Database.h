#ifndef TILL_STORAGE_DATABASE_H
#define TILL_STORAGE_DATABASE_H

#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlQuery>

#include <map>
#include <memory>

namespace till {

/*!
 * An open database file of the register, locked for this process alone and with the schema in
 * place. Operations that fail say why in `error`, one line that starts with the path.
 */
class Database
{
public:
    //! Opens or makes it; null, with the reason in \a error, when that cannot be done.
    static std::unique_ptr<Database> open(const QString &path, QString *error);
    ~Database();
    Q_DISABLE_COPY_MOVE(Database)

    //! The path as it was given.
    QString path() const { return m_path; }
    //! What went wrong last; empty when nothing did since `forgetError`.
    QString error() const { return m_error; }
    void forgetError() { m_error.clear(); }
    //! Notes \a reason as the error and returns false.
    bool fail(const QString &reason);

    /*!
     * Runs \a sql with \a values in place of its question marks. The statement is prepared once and
     * kept; the result is valid until the same text is run again. Null when it failed.
     */
    QSqlQuery *run(const QString &sql, const QVariantList &values = {});
    //! True while \a rows, a result of `run`, has one more row; false at the end and when reading
    //! failed, which `error` tells apart.
    bool next(QSqlQuery &rows);

    bool begin();
    bool commit();
    //! Undoes what was done since `begin`; the error stays as it was.
    void rollBack();

private:
    explicit Database(const QString &path);

    bool checkPlace();
    bool connectToFile();
    bool recognise();
    bool check();
    bool makeDurable();
    bool makeSchema();
    bool checkWritable();

    bool execute(const QString &sql);
    QVariant valueOf(const QString &sql);
    bool failWith(const QSqlError &error);

    QString m_path;
    QString m_connection;
    QString m_error;
    bool m_new = false; //!< nothing is in it yet
    QSqlDatabase m_database;
    std::map<QString, QSqlQuery> m_statements;
};

} // namespace till

#endif // TILL_STORAGE_DATABASE_H
