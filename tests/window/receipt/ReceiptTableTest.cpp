#include "tests/window/support/WindowTest.h"

#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>

namespace till {

namespace {

class ReceiptTableTest : public WindowTest
{
protected:
    ReceiptTable &table() { return window->table(); }

    //! The pixels of a row as it is drawn.
    QImage drawn(int posnum)
    {
        const int row = rows().rowOf(posnum);
        QRect area = table().visualRect(rows().index(row, 0));
        area.setRight(table().viewport()->width());
        return table().viewport()->grab(area).toImage();
    }
    static bool has(const QImage &image, const QColor &colour)
    {
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) == colour)
                    return true;
            }
        }
        return false;
    }
};

TEST_F(ReceiptTableTest, EveryRow_IsHighEnoughToTouch)
{
    scan("PET1");
    scan("BAG");

    EXPECT_GE(table().rowHeight(0), 44);
    EXPECT_EQ(table().rowHeight(0), table().rowHeight(1));
}

TEST_F(ReceiptTableTest, BarOfATara_IsDrawnInTheColoursOfItsGoods)
{
    scan("PET1");
    EXPECT_FALSE(has(drawn(1), GoodsLook::of(0).colour));

    scan("0.5*BEER");

    EXPECT_TRUE(has(drawn(1), GoodsLook::of(0).colour));
    EXPECT_TRUE(has(drawn(2), GoodsLook::of(0).colour));
}

TEST_F(ReceiptTableTest, AddedPosition_IsSelected)
{
    scan("PET1");
    scan("BEER");

    EXPECT_EQ(table().selectedPositions(), QList<int>{2});
}

TEST_F(ReceiptTableTest, ClickedRows_AreSelectedTogether)
{
    scan("PET1");
    scan("BEER");
    scan("BAG");

    select({3, 1});

    EXPECT_EQ(table().selectedPositions(), (QList<int>{1, 3}));
}

TEST_F(ReceiptTableTest, Selection_StaysWhenTheReceiptChanges)
{
    scan("PET1");
    scan("BAG");
    select({1});
    click("quantity");

    enter("2");

    EXPECT_EQ(table().selectedPositions(), QList<int>{1});
}

TEST_F(ReceiptTableTest, UpAndDown_EndAtTheFirstAndTheLastPosition)
{
    scan("BAG");
    scan("CHIPS");

    for (int time = 0; time < 3; ++time)
        press(Qt::Key_Up);
    EXPECT_EQ(table().selectedPositions(), QList<int>{1});
    for (int time = 0; time < 3; ++time)
        press(Qt::Key_Down);
    EXPECT_EQ(table().selectedPositions(), QList<int>{2});
}

TEST_F(ReceiptTableTest, LongQuantity_IsShownWhole)
{
    scan("999999*CRATE20");

    const QString text = rows().index(0, ReceiptModel::Count).data().toString();

    EXPECT_LE(table().fontMetrics().horizontalAdvance(text),
              table().columnWidth(ReceiptModel::Count));
}

TEST_F(ReceiptTableTest, AllColumns_FitTheTable)
{
    scan("999999*CRATE20");

    EXPECT_LE(table().horizontalHeader()->length(), table().viewport()->width());
}

TEST_F(ReceiptTableTest, LanguageAndBack_LeavesTheColumnsAsTheyWere)
{
    scan("PET1");
    const auto widths = [this] {
        QList<int> all;
        for (int column = 0; column < ReceiptModel::columns; ++column)
            all.append(table().columnWidth(column));
        return all;
    };
    const QList<int> before = widths();

    window->setLanguage("ru");
    EXPECT_NE(widths(), before);
    window->setLanguage("en");

    EXPECT_EQ(widths(), before);
}

TEST_F(ReceiptTableTest, WithLittleRoom_PriceGivesWayToTheArticle)
{
    scan("PET1");
    table().setFixedWidth(600);
    QCoreApplication::processEvents();
    EXPECT_FALSE(table().isColumnHidden(ReceiptModel::Price));

    table().setFixedWidth(260);
    QCoreApplication::processEvents();

    EXPECT_TRUE(table().isColumnHidden(ReceiptModel::Price));
    table().setFixedWidth(600);
    QCoreApplication::processEvents();
    EXPECT_FALSE(table().isColumnHidden(ReceiptModel::Price));
}

TEST_F(ReceiptTableTest, LongReceiptThatIsTakenUp_OpensAtItsEnd)
{
    for (int count = 0; count < 30; ++count)
        scan("BAG");

    open(setup());
    QCoreApplication::processEvents();

    EXPECT_GT(table().verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(table().verticalScrollBar()->value(), table().verticalScrollBar()->maximum());
}

} // namespace

} // namespace till
