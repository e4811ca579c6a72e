#ifndef TESTS_TILL_SUPPORT_SQL_H
#define TESTS_TILL_SUPPORT_SQL_H

#include <QtCore/QVariant>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtSql/QSqlRecord>

#include <gtest/gtest.h>

namespace till {

//! Runs \a sql, which must work, on the database at \a path; the rows that it gives.
inline QList<QVariantList> rowsOf(const QString &path, const QString &sql)
{
    const QString connection = QStringLiteral("rows");
    QList<QVariantList> rows;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        database.setDatabaseName(path);
        EXPECT_TRUE(database.open());
        QSqlQuery query(database);
        EXPECT_TRUE(query.exec(sql)) << query.lastError().text().toStdString();
        while (query.next()) {
            QVariantList row;
            for (int column = 0; column < query.record().count(); ++column)
                row.append(query.value(column));
            rows.append(row);
        }
    }
    QSqlDatabase::removeDatabase(connection);
    return rows;
}

} // namespace till

#endif // TESTS_TILL_SUPPORT_SQL_H
