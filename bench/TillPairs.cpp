#include "bench/Pairs.h"
#include "bench/Records.h"
#include "bench/TillFile.h"
#include "till/database/Database.h"
#include "till/goods/Catalogue.h"
#include "till/plugins/PluginLoader.h"
#include "till/register/Register.h"
#include "till/schema/Schema.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <cstdlib>
#include <memory>
#include <optional>

namespace bench {

namespace {

[[noreturn]] void giveUp(const QString &reason)
{
    std::fprintf(stderr, "%s\n", reason.toUtf8().constData());
    std::exit(1);
}

const till::Catalogue &catalogue()
{
    static const auto loaded = till::Catalogue::load(QStringLiteral(BENCH_CATALOGUE));
    if (!loaded)
        giveUp(loaded.error().text());
    return *loaded;
}

//! An open receipt of \a n positions, one half tara and one half goods, as `Records` says.
till::ReceiptRecord makeReceipt(int n)
{
    const auto tara = catalogue().find(QStringLiteral("PET05"));
    const auto all = catalogue().articles();
    const auto goods = std::find_if(all.cbegin(), all.cend(), [](const auto &article) {
        return article->data.taraMode == Tmc::PackagingGoods;
    });
    till::ReceiptRecord receipt;
    for (int posnum = 1; posnum <= n; posnum += 2) {
        const double pieces = posnum == 1 ? 2 : 1;
        receipt.lines.append({posnum, tara->data, pieces, pieces, {}, false});
        receipt.lines.append({posnum + 1, (*goods)->data, 0.5, 0.5, {}, false});
    }
    receipt.nextPosnum = n + 1;
    Document document;
    store(Records(n), document);
    receipt.pluginData = document.pluginData();
    return receipt;
}

//! A register with the plugin on a database file, with the receipt open. One at a time.
class RunningTill
{
public:
    explicit RunningTill(const QString &path)
    {
        auto opened = till::Storage::open(path);
        if (!opened)
            giveUp(opened.error().text());
        m_storage = std::move(*opened);
        const auto loaded = m_loader.load(QStringLiteral(BENCH_PLUGIN));
        if (!loaded)
            giveUp(loaded.error().text());
        m_plugin = *loaded;
        m_register.emplace(
            till::Register::Parts{catalogue(), *m_storage, &*m_plugin, m_settings, m_notes});
        if (const auto started = m_register->start(); !started)
            giveUp(started.error().text());
    }

    ~RunningTill()
    {
        m_register.reset();
        m_loader.unload();
    }
    Q_DISABLE_COPY_MOVE(RunningTill)

    //! The cashier changes the count of pieces of a position.
    void changeCount(int posnum, double count)
    {
        if (!m_register->carryOut(till::command::ChangeCount{posnum, count}))
            giveUp(QStringLiteral("the till refuses to change position %1").arg(posnum));
    }

    qint64 receipt() const { return m_register->receipt()->id(); }
    till::Storage &storage() { return *m_storage; }

private:
    Config m_settings;
    till::Notes m_notes;
    std::unique_ptr<till::Storage> m_storage;
    till::PluginLoader m_loader;
    std::optional<till::LoadedPlugin> m_plugin;
    std::optional<till::Register> m_register;
};

//! The row of \a table that \a condition picks.
till::Table::Row rowOf(till::Database &database, const till::Table &table, const QString &condition)
{
    QSqlQuery *rows = database.run(table.select() + QStringLiteral("WHERE ") + condition);
    if (!rows || !database.next(*rows))
        giveUp(QStringLiteral("%1: no row where %2").arg(database.path(), condition));
    const till::Table::Row row = table.row(*rows);
    rows->finish();
    return row;
}

//! What the last command of \a till, on the file \a path, wrote; it had \a earlier entries in its
//! journal before.
CommandRows lastRows(RunningTill &till, const QString &path, qsizetype place, qsizetype earlier)
{
    const auto opened = till::Database::open(path, till::Database::Access::Reading);
    if (!opened)
        giveUp(opened.error().text());
    const auto &database = *opened;
    const QString receipt = QString::number(till.receipt());
    CommandRows rows{rowOf(*database, till::receiptsTable(), QStringLiteral("id = ") + receipt),
                     rowOf(*database, till::positionsTable(),
                           QStringLiteral("receipt = %1 AND place = %2").arg(receipt).arg(place)),
                     rowOf(*database, till::pluginDataTable(),
                           QStringLiteral("receipt = %1 AND key = 'taraInfo' AND place = %2")
                               .arg(receipt)
                               .arg(place / 2 + 1)), // every other position is tara
                     till.storage().journal(till.receipt())};
    rows.journal.remove(0, earlier);
    return rows;
}

/*!
 * The cashier sets the count of the last tara, which is empty, to 2 and to 1 in turn, and waits for
 * the acknowledgement; over a commit of the same rows.
 */
class TillCommand
{
public:
    explicit TillCommand(int n)
        : m_posnum(n - 1)
    {
        const QString origin = m_directory.filePath(QStringLiteral("origin"));
        till::ReceiptUpdate receipt = wholeOf(makeReceipt(n));
        if (const auto saved = (*till::Storage::open(origin))->save(receipt, {}); !saved)
            giveUp(saved.error().text());
        for (const QString &copy : {recordedPath(), tillPath(), byHandPath()})
            QFile::copy(origin, copy);
        recordRows();
        m_till.emplace(tillPath());
        m_file.emplace(byHandPath());
        // The first command after a take-up stores the whole receipt.
        measured();
        byHand();
    }

    void measured()
    {
        m_count = 3 - m_count;
        m_till->changeCount(m_posnum, m_count);
    }

    void byHand()
    {
        m_isSecond = !m_isSecond;
        m_file->commit(m_isSecond ? m_second : m_first);
    }

    //! After three commands both files hold the same.
    bool same()
    {
        for (int call = 0; call < 3; ++call) {
            measured();
            byHand();
        }
        m_till.reset();
        const QStringList expected = TillFile(tillPath()).contents();
        return expected.size() > 3 && m_file->contents() == expected;
    }

private:
    QString recordedPath() const { return m_directory.filePath(QStringLiteral("recorded")); }
    QString tillPath() const { return m_directory.filePath(QStringLiteral("till")); }
    QString byHandPath() const { return m_directory.filePath(QStringLiteral("byhand")); }

    void recordRows()
    {
        RunningTill till(recordedPath());
        till.changeCount(m_posnum, 2);
        m_first = lastRows(till, recordedPath(), m_posnum - 1, 0);
        till.changeCount(m_posnum, 1);
        m_second = lastRows(till, recordedPath(), m_posnum - 1, m_first.journal.size());
    }

    QTemporaryDir m_directory{QStringLiteral("bench-XXXXXX")};
    int m_posnum;
    double m_count = 1;
    CommandRows m_first;
    CommandRows m_second;
    bool m_isSecond = true;
    std::optional<RunningTill> m_till;
    std::optional<TillFile> m_file;
};

} // namespace

void addTillCommands(Pairs &pairs)
{
    for (const int n : {10, 100, 1000})
        addPair<TillCommand>(pairs, "till", n, 10);
}

} // namespace bench
