#include "tests/till/storage/StorageFixture.h"

namespace till {

namespace {

//! A receipt that was closed, and an open one.
class StorageSetApart : public StorageTest
{
protected:
    StorageSetApart()
    {
        ReceiptRecord finished = leaveUnfinished(1);
        finished.state = ReceiptState::Closed;
        save(*opened(), finished);
        leaveUnfinished(3);
    }
};

TEST_F(StorageSetApart, Damaged_StaysAsItIsAndAnotherIsOpened)
{
    query("UPDATE positions SET price = -100 WHERE receipt = 2");
    const QString rows = "SELECT hex(digest) || price FROM positions";
    const QStringList before = query(rows);
    {
        const auto storage = opened();
        EXPECT_EQ(faultText(storage->setApart(2)), QString());
        EXPECT_EQ(unfinished(*storage), std::nullopt);
    }
    EXPECT_EQ(query(rows), before);
    EXPECT_EQ(query("SELECT reason FROM setApart"),
              QStringList{"position 1 is not as it was stored"});

    const ReceiptRecord next = leaveUnfinished(1);
    EXPECT_EQ(next.id, 3);
    EXPECT_EQ(unfinished(*opened()), next);
}

TEST_F(StorageSetApart, WithoutAHeader_ItsNumberIsNotGivenAgain)
{
    query("DELETE FROM receipts WHERE id = 2");
    EXPECT_EQ(faultText(opened()->setApart(2)), QString());
    EXPECT_EQ(leaveUnfinished(1).id, 3);
}

TEST_F(StorageSetApart, WithRowsThatCannotBeRead_TellsWhyAndNotWhereOnceMore)
{
    const auto storage = opened();
    query("ALTER TABLE positions RENAME COLUMN unit TO measure");
    EXPECT_EQ(must(storage->setApart(2)), "no such column: unit");
    EXPECT_EQ(query("SELECT reason FROM setApart"), QStringList{"no such column: unit"});
}

TEST_F(StorageSetApart, DamagedLinesOfAFinishedReceipt_StopNobody)
{
    ReceiptRecord newest = leaveUnfinished(2);
    newest.state = ReceiptState::Cancelled;
    save(*opened(), newest);
    query("UPDATE positions SET price = -100 WHERE receipt = 3");
    EXPECT_EQ(unfinished(*opened())->id, 2);
}

TEST_F(StorageSetApart, WhatHolds_IsSetApartOnlyWhileUnfinished)
{
    const auto storage = opened();
    EXPECT_EQ(faultText(storage->setApart(1)), path() + ": receipt 1: it is finished and whole");
    EXPECT_EQ(faultText(storage->setApart(3)), path() + ": there is no receipt 3");
    EXPECT_EQ(faultText(storage->setApart(0)), path() + ": there is no receipt 0");
    EXPECT_EQ(faultText(storage->setApart(2)), QString());
    EXPECT_EQ(faultText(storage->setApart(2)), path() + ": receipt 2: it is set apart already");
    EXPECT_EQ(unfinished(*storage), std::nullopt);
}

} // namespace

} // namespace till
