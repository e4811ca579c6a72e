#include "till/receipt/Receipt.h"

#include "tests/support/Printers.h"

#include <gtest/gtest.h>

namespace till {

namespace {

class ReceiptUpdates : public testing::Test
{
protected:
    ReceiptUpdates()
    {
        add();
        add();
        receipt.setPluginData("plugin", "key", QVariantList{1, 2});
        receipt.setStored(5);
        receipt.setWatcher({{},
                            [this](const Position &position) { told << position.getPosnum(); },
                            [this](const ValueChange &) { ++toldValues; }});
    }

    void add() { receipt.add(article, 1.0); }

    const QSharedPointer<Article> article =
        QSharedPointer<Article>::create(ArticleData{"100", "Beer", 1000, 2, 0.0, 0.7, "l"});
    Receipt receipt{Document::Sale};
    QList<int> told;
    int toldValues = 0;
};

TEST_F(ReceiptUpdates, BeforeItIsStored_AreWhole)
{
    Receipt fresh(Document::Sale);
    fresh.add(article, 1.0);
    fresh.setPluginData("plugin", "key", 5);
    const ReceiptUpdate update = fresh.update();
    EXPECT_TRUE(update.isWhole);
    EXPECT_EQ(update.lines.keys(), QList<qsizetype>{0});
    ASSERT_EQ(update.values.size(), 1);
    EXPECT_EQ(update.values[0].value, 5);
}

TEST_F(ReceiptUpdates, OfWhatWasStored_HaveNothingButTheHeader)
{
    const ReceiptUpdate update = receipt.update();
    EXPECT_FALSE(update.isWhole);
    EXPECT_EQ(update.id, 5);
    EXPECT_TRUE(update.lines.isEmpty());
    EXPECT_TRUE(update.values.isEmpty());
}

TEST_F(ReceiptUpdates, OfALine_HaveThatLineByItsPlace)
{
    receipt.storno(2);
    const ReceiptUpdate update = receipt.update();
    EXPECT_EQ(update.lines.keys(), QList<qsizetype>{1});
    EXPECT_TRUE(update.lines[1].stornoed);
    EXPECT_EQ(told, QList<int>{2});
}

TEST_F(ReceiptUpdates, OfALineThatAPluginChanged_HaveItOnceItIsLookedFor)
{
    receipt.line(1)->setGroupId("{group}");
    EXPECT_TRUE(receipt.update().lines.isEmpty());
    receipt.noteUnnoted();
    EXPECT_EQ(receipt.update().lines.keys(), QList<qsizetype>{0});
    receipt.noteUnnoted();
    EXPECT_EQ(told, QList<int>{1});
}

TEST_F(ReceiptUpdates, OfDataSetToTheSame_HaveNothing)
{
    receipt.setPluginData("plugin", "key", QVariantList{1, 2});
    EXPECT_TRUE(receipt.update().values.isEmpty());
    EXPECT_EQ(toldValues, 0);
}

TEST_F(ReceiptUpdates, OfData_HaveTheirParts)
{
    receipt.setPluginData("plugin", "key", QVariantList{1, 3});
    const ReceiptUpdate update = receipt.update();
    ASSERT_EQ(update.values.size(), 1);
    EXPECT_EQ(update.values[0].key, "key");
    EXPECT_EQ(update.values[0].parts, (QList<ListChange>{{1, 1, {3}}}));
    EXPECT_EQ(toldValues, 1);
    EXPECT_EQ(receipt.getPluginData("plugin", "key", {}), (QVariantList{1, 3}));
}

TEST_F(ReceiptUpdates, Total_FollowsEachChangeAndIsThatOfTheLastTouch)
{
    receipt.touch();
    EXPECT_EQ(receipt.total(), 2000);
    receipt.line(1)->setQuantity(2.5, 1.75);
    receipt.note(*receipt.line(1));
    receipt.storno(2);
    add();
    EXPECT_EQ(receipt.total(), 2000);
    receipt.touch();
    EXPECT_EQ(receipt.total(), 3500);
}

TEST_F(ReceiptUpdates, StornoedLine_IsALineAndNoPositionOfTheDocument)
{
    receipt.storno(1);
    EXPECT_NE(receipt.line(1), nullptr);
    EXPECT_EQ(receipt.getPositionByPosnum(1), nullptr);
    EXPECT_EQ(receipt.getPositionByPosnum(2), receipt.line(2));
    EXPECT_EQ(receipt.line(3), nullptr);
    EXPECT_FALSE(receipt.storno(1));
}

} // namespace

} // namespace till
