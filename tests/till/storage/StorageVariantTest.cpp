#include "tests/till/storage/PluginTypes.h"
#include "tests/till/storage/StorageFixture.h"

#include "tests/support/Printers.h"

#include <QtCore/QBitArray>
#include <QtCore/QDataStream>
#include <QtCore/QDateTime>
#include <QtCore/QIODevice>
#include <QtCore/QJsonObject>
#include <QtCore/QObject>
#include <QtCore/QProcess>
#include <QtCore/QUuid>

#include <cmath>
#include <limits>

namespace till {

namespace {

//! Two doubles with the same bits, so that signs of 0 and numbers that are none count.
bool isSameNumber(double left, double right)
{
    return std::signbit(left) == std::signbit(right)
           && (left == right || (std::isnan(left) && std::isnan(right)));
}

bool isSame(const QVariant &left, const QVariant &right);

bool isSame(const QVariantList &left, const QVariantList &right)
{
    return std::equal(left.cbegin(), left.cend(), right.cbegin(), right.cend(),
                      [](const QVariant &a, const QVariant &b) { return isSame(a, b); });
}

bool isSame(const QVariantMap &left, const QVariantMap &right)
{
    return left.keys() == right.keys() && isSame(left.values(), right.values());
}

//! Stricter than `==`, which converts: the same type, nullness and content, down to the leaves.
bool isSame(const QVariant &left, const QVariant &right)
{
    if (left.metaType() != right.metaType() || left.isNull() != right.isNull())
        return false;
    switch (left.typeId()) {
    case QMetaType::QVariantList:
        return isSame(left.toList(), right.toList());
    case QMetaType::QVariantMap:
        return isSame(left.toMap(), right.toMap());
    case QMetaType::Double:
        return isSameNumber(left.toDouble(), right.toDouble());
    case QMetaType::Float:
        return isSameNumber(left.toFloat(), right.toFloat());
    case QMetaType::QString:
        return left.toString().isNull() == right.toString().isNull() && left == right;
    case QMetaType::QByteArray:
        return left.toByteArray().isNull() == right.toByteArray().isNull() && left == right;
    default:
        return left == right;
    }
}

struct Value
{
    std::string name;
    QVariant value;
};

void PrintTo(const Value &row, std::ostream *out)
{
    *out << row.name;
}

class StoredValues : public StorageTest, public testing::WithParamInterface<Value>
{
protected:
    static QVariant afterReopen(const QString &path)
    {
        const auto record = unfinished(*opened(path));
        return record ? record->pluginData["plugin"]["key"] : QVariant("no receipt");
    }

    static ReceiptRecord holding(const QVariant &value)
    {
        ReceiptRecord record;
        record.pluginData["plugin"]["key"] = value;
        return record;
    }
};

TEST_P(StoredValues, Reopened_AreTheSame)
{
    ReceiptRecord record = holding(GetParam().value);
    save(*opened(), record);
    EXPECT_PRED2((static_cast<bool (*)(const QVariant &, const QVariant &)>(isSame)),
                 afterReopen(path()), GetParam().value);
}

TEST_P(StoredValues, InATree_AreTheSame)
{
    const QVariant tree = QVariantList{
        1, QVariantMap{{"b", GetParam().value}, {"a", QVariantList{GetParam().value}}}};
    ReceiptRecord record = holding(tree);
    save(*opened(), record);
    EXPECT_PRED2((static_cast<bool (*)(const QVariant &, const QVariant &)>(isSame)),
                 afterReopen(path()), tree);
}

// The value that was there may count as equal, as 0 and -0 do, or 5 and 5.0, and yet be another.
TEST_P(StoredValues, InPlaceOfEachOther_AreTheSame)
{
    const QVariantList others{QVariant(), 0, 0.0, -0.0, 5, 5LL, "", QString(), QVariantList()};
    const auto storage = opened();
    ReceiptRecord record;
    for (const QVariant &other : others) {
        record.pluginData = holding(other).pluginData;
        save(*storage, record);
        record.pluginData = holding(GetParam().value).pluginData;
        save(*storage, record);
        const auto kept = unfinished(*storage);
        ASSERT_TRUE(kept);
        EXPECT_PRED2((static_cast<bool (*)(const QVariant &, const QVariant &)>(isSame)),
                     kept->pluginData["plugin"]["key"], GetParam().value);
    }
}

const long Long = -5;

INSTANTIATE_TEST_SUITE_P(
    Table, StoredValues,
    testing::Values(
        Value{"Invalid", QVariant()}, Value{"Null", QVariant::fromValue(nullptr)},
        Value{"NullInt", QVariant(QMetaType(QMetaType::Int))}, Value{"True", true}, Value{"Int", 5},
        Value{"IntZero", 0}, Value{"LongLong", 5LL},
        Value{"Long", QVariant(QMetaType(QMetaType::Long), &Long)},
        Value{"UInt", std::numeric_limits<uint>::max()},
        Value{"ULongLong", std::numeric_limits<qulonglong>::max()},
        Value{"Short", QVariant::fromValue(short(-3))},
        Value{"Char", QVariant::fromValue(QChar(u'Ж'))}, Value{"Double", 0.1 + 0.2},
        Value{"DoubleFive", 5.0}, Value{"Zero", 0.0}, Value{"NegativeZero", -0.0},
        Value{"NotANumber", std::numeric_limits<double>::quiet_NaN()},
        Value{"Infinity", -std::numeric_limits<double>::infinity()},
        Value{"Denormal", std::numeric_limits<double>::denorm_min()}, Value{"Float", 0.1F},
        Value{"Text", QString::fromUtf8("Пиво \U0001F37A")}, Value{"EmptyText", ""},
        Value{"NullText", QString()}, Value{"TextWithNul", QString::fromUtf8("a\0b", 3)},
        Value{"DigitsAsText", "5"}, Value{"Bytes", QByteArray("\x00\xff\x80", 3)},
        Value{"EmptyBytes", QByteArray("")}, Value{"NullBytes", QByteArray()},
        Value{"EmptyList", QVariantList()}, Value{"EmptyMap", QVariantMap()},
        Value{"Texts", QStringList{"b", "", "a"}},
        Value{"Map", QVariantMap{{"b", 1}, {"B", 2}, {"", 3}, {"a", QVariant()}, {"ы", 4}}},
        Value{"Hash", QVariantHash{{"b", 1}, {"a", QVariantList{1.0}}}},
        Value{"Uuid", QUuid("{12345678-1234-1234-1234-123456789abc}")},
        Value{"Date", QDate(2026, 2, 28)}, Value{"Json", QJsonObject{{"a", 1.5}}},
        Value{"Bits", QBitArray(11, true)},
        Value{"Tara",
              QVariantList{QVariantMap{
                  {"posnum", 2}, {"id", "{5}"}, {"capacity", 10.0}, {"freeCapacity", -5.5}}}}),
    [](const auto &test) { return test.param.name; });

class StorageVariant : public StoredValues
{
protected:
    //! Saving \a value over a good receipt is refused because of \a type, and nothing is stored.
    void refused(const QVariant &value, const QString &type) const
    {
        const auto storage = opened();
        ReceiptRecord record = holding("good");
        save(*storage, record);
        const ReceiptRecord before = record;
        record.order = "5";
        record.pluginData["plugin"]["key"] = value;

        EXPECT_EQ(trySave(*storage, record, {{0, "add", "{}"}}),
                  path() + ": the data of plugin \"plugin\" under \"key\" hold a value of type \""
                      + type + "\", which cannot be stored");
        EXPECT_EQ(unfinished(*storage), before);
        EXPECT_TRUE(journalOf(path(), record.id).isEmpty());
    }
};

TEST_F(StorageVariant, TypeWithOperators_ComesBack)
{
    ReceiptRecord record = holding(QVariant::fromValue(Streamed{7}));
    save(*opened(), record);
    EXPECT_EQ(afterReopen(path()).value<Streamed>().number, 7);
}

TEST_F(StorageVariant, VariantInAVariant_ComesBack)
{
    const QVariant inner = -0.0;
    ReceiptRecord record = holding(QVariant(QMetaType::fromType<QVariant>(), &inner));
    save(*opened(), record);
    const QVariant outer = afterReopen(path());
    ASSERT_EQ(outer.typeId(), QMetaType::QVariant);
    EXPECT_TRUE(isSame(*static_cast<const QVariant *>(outer.constData()), inner));
}

TEST_F(StorageVariant, ContainerOfItsOwnType_ComesBack)
{
    const QMap<QString, double> used{{"{1}", 4.5}, {"{2}", -0.5}};
    ReceiptRecord record = holding(QVariant::fromValue(used));
    save(*opened(), record);
    EXPECT_EQ((afterReopen(path()).value<QMap<QString, double>>()), used);
}

TEST_F(StorageVariant, TypeThatIsNotKnownHere_IsAnErrorThatNamesIt)
{
    QProcess process;
    process.start(STORAGE_WRITER, {"foreign", path()});
    ASSERT_TRUE(process.waitForFinished(patience));
    ASSERT_EQ(process.readAllStandardOutput(), "saved\n");

    EXPECT_EQ(faultText(opened()->unfinishedReceipt()),
              path()
                  + ": receipt 1: the data of plugin \"plugin\" under \"key\" hold a value "
                    "of type \"KnownToTheWriter\", which is not known; \"till set-apart 1\" sets "
                    "this receipt apart, so that another can be opened");
}

TEST_F(StorageVariant, TypeWithoutOperators_IsRefused)
{
    refused(QVariant::fromValue(Mute{1}), "Mute");
}

TEST_F(StorageVariant, Pointer_IsRefused)
{
    refused(QVariant::fromValue<QObject *>(nullptr), "QObject*");
}

TEST_F(StorageVariant, TypeWithoutOperatorsInAList_IsRefused)
{
    refused(QVariantList{1, QVariant::fromValue(Mute{1})}, "Mute");
}

TEST_F(StorageVariant, TypeWithoutOperatorsDeepInATree_IsRefused)
{
    refused(QVariantList{QVariantMap{{"a", QVariantHash{{"b", QVariant::fromValue(Mute{1})}}}}},
            "Mute");
}

TEST_F(StorageVariant, TypeWithoutOperatorsInAPair_IsRefused)
{
    using Pair = std::pair<QVariant, QVariant>;
    refused(QVariant::fromValue(Pair(1, QVariant::fromValue(Mute{1}))), "Mute");
    refused(QVariant::fromValue(Pair(QVariant::fromValue(Mute{1}), 1)), "Mute");
}

TEST_F(StorageVariant, TypeWithoutOperatorsInAVariant_IsRefused)
{
    const QVariant inner = QVariant::fromValue(Mute{1});
    refused(QVariant(QMetaType::fromType<QVariant>(), &inner), "Mute");
}

TEST_F(StorageVariant, TypeWithoutOperatorsInOtherContainers_IsRefused)
{
    const QVariant mute = QVariant::fromValue(Mute{1});
    refused(QVariant::fromValue(QList<QVariantMap>{{{"a", mute}}}), "Mute");
    refused(QVariant::fromValue(QMap<int, QVariant>{{1, mute}}), "Mute");
}

TEST_F(StorageVariant, TypeWhoseOperatorsDoNotFit_IsRefused)
{
    refused(QVariant::fromValue(Lopsided{1}), "Lopsided");
}

} // namespace

} // namespace till
