#include "tests/till/support/ManyReceipts.h"

#include "till/database/Database.h"
#include "till/schema/Schema.h"
#include "till/storage/JournalRows.h"
#include "till/storage/ReceiptWriter.h"

#include <QtCore/QDateTime>

#include <random>

namespace till {

namespace {

const QDate firstDay(2020, 1, 1);
constexpr qint64 inOneTransaction = 1000;

ArticleData article(const char *code, Kopecks price, int taraMode, double capacity)
{
    return {QString::fromLatin1(code),
            QStringLiteral("Товар %1").arg(QLatin1String(code)),
            price,
            taraMode,
            capacity,
            1.0,
            QString::fromUtf8(taraMode == 1 ? "шт" : "л")};
}

//! One receipt after another.
class Shop
{
public:
    explicit Shop(quint32 seed)
        : m_random(seed)
    {
    }

    //! A receipt as it stands before it ends.
    ReceiptRecord sell()
    {
        m_record = {};
        m_taras = {};
        m_goods = {};
        if (oneOf(30)) {
            m_record.type = Document::Return;
            add(article("CHIPS", 12990, 0, 0.0), 1.0);
            return m_record;
        }
        const auto pairs = m_random() % 4;
        for (quint32 i = 0; i < pairs; ++i)
            pour();
        if (pairs == 0 || oneOf(3))
            add(article("CHIPS", 12990, 0, 0.0), 1.0 + m_random() % 3);
        m_record.pluginData["PackagingControl"] = {{"packagingInfo", m_goods},
                                                   {"taraInfo", m_taras}};
        return m_record;
    }

    bool oneOf(quint32 many) { return m_random() % many == 0; }

private:
    int add(const ArticleData &article, double count)
    {
        const int posnum = m_record.nextPosnum++;
        m_record.lines.append({posnum, article, count, count, {}, false});
        return posnum;
    }

    //! A tara, and goods in it: it is full, half full or, seldom, empty.
    void pour()
    {
        static const ArticleData taras[] = {article("PET05", 700, 1, 0.5),
                                            article("PET1", 900, 1, 1.0),
                                            article("CAN3", 6000, 1, 3.0)};
        static const ArticleData goods[] = {article("BEER", 14000, 2, 0.0),
                                            article("MILK", 9250, 2, 0.0)};
        const ArticleData &tara = taras[m_random() % 3];
        const auto kind = m_random() % 10;
        const double amount = tara.taraCapacity * (kind == 0 ? 0.0 : kind < 4 ? 0.5 : 1.0);
        const QString id = QStringLiteral("{%1}").arg(m_random(), 36, 16, QLatin1Char('0'));
        m_taras.append(QVariantMap{{"posnum", add(tara, 1.0)},
                                   {"id", id},
                                   {"capacity", tara.taraCapacity},
                                   {"freeCapacity", tara.taraCapacity - amount}});
        if (amount > 0.0)
            m_goods.append(QVariantMap{{"posnum", add(goods[m_random() % 2], amount)},
                                       {"usedTara", QVariantMap{{id, amount}}}});
    }

    std::mt19937 m_random;
    ReceiptRecord m_record;
    QVariantList m_taras;
    QVariantList m_goods;
};

//! Stores \a record as opened and ended at \a opened, in the state \a state.
Result<> store(Database &database, const ReceiptRecord &record, qint64 opened, ReceiptState state)
{
    constexpr qint64 minute = 60'000;
    StoredReceipt stored;
    ReceiptUpdate update = wholeOf(record);
    if (const Result<> written = writeReceipt(database, update, stored); !written)
        return written;
    stored.opened = opened;
    stored.ended = opened + minute;
    ReceiptUpdate end;
    static_cast<ReceiptHeader &>(end) = update;
    end.state = state;
    return writeReceipt(database, end, stored).then([&] {
        return writeJournal(database, update.id,
                            {{1, "action", R"({"depth":1,"kind":"action","type":10000})"}});
    });
}

qint64 openedAt(qint64 id)
{
    constexpr qint64 halfMinute = 30'000;
    return QDateTime(dayOfReceipt(id), QTime(9, 0)).toMSecsSinceEpoch()
           + (id - 1) % receiptsADay * halfMinute;
}

} // namespace

QDate dayOfReceipt(qint64 id)
{
    return firstDay.addDays((id - 1) / receiptsADay);
}

Result<> makeManyReceipts(const QString &path, qint64 count, quint32 seed,
                          void (*progress)(qint64 done))
{
    auto opened = Database::open(path, Database::Access::Till);
    if (!opened)
        return opened.error();
    Database &database = **opened;
    if (const Result<QString> prepared = prepareSchema(database); !prepared)
        return prepared.error();
    Shop shop(seed);
    for (qint64 id = 1; id <= count;) {
        const Result<> stored = database.inTransaction([&] {
            Result<> done;
            for (int i = 0; done && i < inOneTransaction && id <= count; ++i, ++id) {
                const ReceiptRecord record = shop.sell();
                done = store(database, record, openedAt(id),
                             shop.oneOf(20) ? ReceiptState::Cancelled : ReceiptState::Closed);
            }
            return done;
        });
        if (!stored)
            return stored;
        if (progress)
            progress(id - 1);
    }
    return {};
}

} // namespace till
