#include "tests/support/Printers.h"
#include "tests/till/support/FolderTest.h"
#include "till/result/WriteAll.h"

#include <algorithm>

// What an operation gives, or why it gives nothing.

namespace till {

namespace {

const Fault fault{QStringLiteral("shop.csv:3"), QStringLiteral("no price")};

TEST(Fault, Text_HasWhatIsKnown)
{
    EXPECT_EQ((Fault{"a.db", "it is damaged", "copy it"}.text()), "a.db: it is damaged; copy it");
    EXPECT_EQ((Fault{"a.db", "it is damaged"}.text()), "a.db: it is damaged");
    EXPECT_EQ((Fault{{}, "it is damaged", "copy it"}.text()), "it is damaged; copy it");
    EXPECT_EQ((Fault{{}, "it is damaged"}.text()), "it is damaged");
}

TEST(Result, OfAValue_IsTrueAndHasIt)
{
    const Result<int> price = 5;
    ASSERT_TRUE(price);
    EXPECT_EQ(*price, 5);
}

TEST(Result, OfAFault_IsFalseAndHasIt)
{
    const Result<int> price = fault;
    ASSERT_FALSE(price);
    EXPECT_TRUE(price.error() == fault);
}

TEST(Result, OfNothing_IsTrue)
{
    EXPECT_TRUE(Result<>());
}

TEST(Result, Then_GoesOnWithTheValue)
{
    const auto doubled = [](int price) { return Result<double>(2.5 * price); };
    EXPECT_EQ(Result<int>(3).then(doubled).value_or(0.0), 7.5);
    EXPECT_EQ(Result<>().then([] { return Result<int>(4); }).value_or(0), 4);
}

TEST(Result, ThenOfAFault_IsThatFaultAndDoesNothing)
{
    int steps = 0;
    const auto stepped = [&steps](auto...) {
        ++steps;
        return Result<QString>("done");
    };
    const Result<QString> ofValue = Result<int>(fault).then(stepped);
    const Result<QString> ofNothing = Result<>(fault).then(stepped);
    EXPECT_EQ(steps, 0);
    ASSERT_FALSE(ofValue);
    ASSERT_FALSE(ofNothing);
    EXPECT_TRUE(ofValue.error() == fault);
    EXPECT_TRUE(ofNothing.error() == fault);
}

TEST(Result, ThenWithAFault_IsThatFault)
{
    const auto failed = Result<>().then([] { return Result<int>(fault); });
    ASSERT_FALSE(failed);
    EXPECT_TRUE(failed.error() == fault);
}

//! A file that takes three bytes at a time, up to as many as it has room for.
class Narrow : public QFile
{
public:
    Narrow(const QString &path, qint64 room)
        : QFile(path)
        , m_room(room)
    {
        EXPECT_TRUE(open(WriteOnly | Unbuffered));
    }

protected:
    qint64 writeData(const char *data, qint64 size) override
    {
        const qint64 taken = std::min({size, qint64(3), m_room});
        m_room -= taken;
        return QFile::writeData(data, taken);
    }

private:
    qint64 m_room;
};

using WriteAll = FolderTest;

TEST_F(WriteAll, WhatIsTakenInParts_IsThereWhole)
{
    Narrow file(path("file"), 100);
    EXPECT_TRUE(writeAll(file, "ten bytes."));
    EXPECT_EQ(contents(path("file")), "ten bytes.");
}

TEST_F(WriteAll, Nothing_IsWritten)
{
    Narrow file(path("file"), 0);
    EXPECT_TRUE(writeAll(file, {}));
}

TEST_F(WriteAll, WhereRoomEnds_ThereIsAFaultOfTheFile)
{
    Narrow file(path("file"), 7);
    const Result<> written = writeAll(file, "ten bytes.");
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().place, path("file"));
    EXPECT_EQ(contents(path("file")), "ten byt");
}

TEST_F(WriteAll, FullDisk_IsTheReason)
{
    QFile full(QStringLiteral("/dev/full"));
    ASSERT_TRUE(full.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    const Result<> written = writeAll(full, "ten bytes.");
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().text(), "/dev/full: No space left on device");
}

} // namespace

} // namespace till
