#include "tests/till/storage/StorageFixture.h"

#include "tests/support/Printers.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>

namespace till {

namespace {

//! Qt SQL loads its driver through the application object.
class Application : public testing::Environment
{
public:
    void SetUp() override
    {
        static int argc = 1;
        static char name[] = "till_storage_test";
        static char *argv[] = {name, nullptr};
        m_application = std::make_unique<QCoreApplication>(argc, argv);
    }
    void TearDown() override { m_application.reset(); }

private:
    std::unique_ptr<QCoreApplication> m_application;
};

void failOnMessage(QtMsgType, const QMessageLogContext &, const QString &text)
{
    ADD_FAILURE() << "Qt says: " << text.toStdString();
}

testing::Environment *const application = testing::AddGlobalTestEnvironment(new Application);

} // namespace

void PrintTo(const LineRecord &line, std::ostream *out)
{
    *out << line.posnum << ' ' << line.article.code.toStdString() << " \""
         << line.article.name.toStdString() << "\" " << line.article.price << " mode "
         << line.article.taraMode << " capacity " << line.article.taraCapacity << " pack "
         << line.article.pack << ' ' << line.article.unit.toStdString() << ": " << line.count
         << " pieces, " << line.base << " base, group \"" << line.groupId.toStdString() << '"'
         << (line.stornoed ? " stornoed" : "");
}

void PrintTo(const ReceiptRecord &record, std::ostream *out)
{
    *out << "receipt " << record.id << " type " << record.type << " state "
         << static_cast<int>(record.state) << " order \"" << record.order.toStdString()
         << "\" next " << record.nextPosnum << " soft-checks ";
    PrintTo(record.softChecks, out);
    for (const LineRecord &line : record.lines) {
        *out << "\n  ";
        PrintTo(line, out);
    }
    for (auto plugin = record.pluginData.cbegin(); plugin != record.pluginData.cend(); ++plugin) {
        *out << "\n  " << plugin.key().toStdString() << ": ";
        PrintTo(QVariant(plugin.value()), out);
    }
}

void PrintTo(const JournalEntry &entry, std::ostream *out)
{
    *out << entry.depth << ' ' << entry.kind.toStdString() << ' ' << entry.json.toStdString();
}

StorageTest::StorageTest()
    : m_handlerBefore(qInstallMessageHandler(failOnMessage))
{
    EXPECT_TRUE(directory.isValid());
}

StorageTest::~StorageTest()
{
    qInstallMessageHandler(m_handlerBefore);
}

QString StorageTest::path(const QString &name) const
{
    return directory.filePath(name);
}

std::unique_ptr<Storage> StorageTest::opened(const QString &path)
{
    QString error;
    auto storage = Storage::open(path, &error);
    EXPECT_EQ(error, QString());
    if (!storage)
        throw std::runtime_error("the database did not open");
    return storage;
}

QString StorageTest::refusalOf(const QString &path)
{
    QString error;
    EXPECT_EQ(Storage::open(path, &error), nullptr);
    return error;
}

void StorageTest::save(Storage &storage, ReceiptRecord &record, const QList<JournalEntry> &journal)
{
    ASSERT_EQ(storage.save(record, journal), QString());
}

std::optional<ReceiptRecord> StorageTest::unfinished(const Storage &storage)
{
    QString error;
    auto record = storage.unfinishedReceipt(&error);
    EXPECT_EQ(error, QString());
    return record;
}

QStringList StorageTest::query(const QString &path, const QString &sql)
{
    QStringList values;
    {
        QSqlDatabase database =
            QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("test"));
        database.setDatabaseName(path);
        EXPECT_TRUE(database.open());
        QSqlQuery rows(database);
        EXPECT_TRUE(rows.exec(sql)) << rows.lastError().text().toStdString();
        while (rows.next())
            values.append(rows.value(0).toString());
    }
    QSqlDatabase::removeDatabase(QStringLiteral("test"));
    return values;
}

QByteArray StorageTest::contents(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

void StorageTest::overwrite(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(contents), contents.size());
}

LineRecord lineOf(int posnum, double count)
{
    const ArticleData article{"100", "Beer", 12050, Tmc::PackagingGoods, 0.0, 0.5, "l"};
    return {posnum, article, count, count * article.pack, "", false};
}

ReceiptRecord StorageTest::receiptOf(int count)
{
    ReceiptRecord record;
    record.nextPosnum = count + 1;
    for (int posnum = 1; posnum <= count; ++posnum)
        record.lines.append(lineOf(posnum));
    return record;
}

ReceiptRecord StorageTest::leaveUnfinished(int count) const
{
    ReceiptRecord record = receiptOf(count);
    save(*opened(), record);
    return record;
}

} // namespace till
