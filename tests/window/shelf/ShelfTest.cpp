#include "tests/window/support/WindowTest.h"

namespace till {

namespace {

class ShelfTest : public WindowTest
{
protected:
    ShelfTest() { window->shelf().setMoving(false); }

    Shelf &shelf() { return window->shelf(); }
    QRect roomOf(int row) { return shelf().visualRect(shelf().vessels().index(row)); }
    void selectVessel(int row)
    {
        shelf().scrollTo(shelf().vessels().index(row));
        click(*shelf().viewport(), roomOf(row).center());
    }
    int pixelsOf(const QColor &colour, int row)
    {
        const QImage image = shelf().viewport()->grab(roomOf(row)).toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y) == colour ? 1 : 0;
        }
        return count;
    }
    int outlineOf(int row) { return pixelsOf(shelf().palette().color(QPalette::Text), row); }
};

TEST_F(ShelfTest, MorePoured_IsMoreOfItsColour)
{
    scan("CAN3");
    scan("BAG");
    scan("BEER");
    select({3});
    const int before = pixelsOf(GoodsLook::of(0).colour, 0);

    click("quantity");
    enter("2");

    EXPECT_GT(before, 0);
    EXPECT_GT(pixelsOf(GoodsLook::of(0).colour, 0), before);
}

TEST_F(ShelfTest, GreaterTara_IsAGreaterVessel)
{
    scan("PET05");
    scan("CAN3");

    EXPECT_GT(outlineOf(1), outlineOf(0));
}

TEST_F(ShelfTest, StornoedTara_LeavesTheShelf)
{
    scan("PET1");
    scan("CAN3");
    answer({true});
    select({1});

    click("storno");

    EXPECT_EQ(shelf().vessels().rowCount(), 1);
    EXPECT_EQ(shelf().vessels().posnumAt(0), 2);
}

TEST_F(ShelfTest, SelectedGoods_LightUpInTheirVessels)
{
    scan("CAN3");
    scan("BEER");
    scan("DARK");

    select({2});

    EXPECT_TRUE(shelf().vessels().isLit(2));
    EXPECT_FALSE(shelf().vessels().isLit(3));
}

TEST_F(ShelfTest, SelectedTara_LeavesAllVesselsAsTheyAre)
{
    scan("CAN3");
    scan("BEER");

    select({1});

    EXPECT_FALSE(shelf().vessels().lightsAny());
}

TEST_F(ShelfTest, SelectedVessel_LightsUpTheRowsOfItsGoods)
{
    scan("PET1");
    scan("CAN3");
    scan("2*BEER");
    scan("DARK");

    selectVessel(1);

    EXPECT_FALSE(rows().isLit(0));
    EXPECT_TRUE(rows().isLit(2));
    EXPECT_TRUE(rows().isLit(3));

    selectVessel(0);
    EXPECT_TRUE(rows().isLit(2));
    EXPECT_FALSE(rows().isLit(3));
}

TEST_F(ShelfTest, Motion_IsSwitchedOffInTheMenu)
{
    shelf().setMoving(true);
    scan("CAN3");
    scan("BEER");
    EXPECT_TRUE(shelf().vessels().isMoving());

    openMenu({Qt::Key_Down, Qt::Key_Return});
    scan("DARK");

    EXPECT_FALSE(shelf().vessels().isMoving());
}

TEST_F(ShelfTest, SelectedGoods_BringTheirVesselIntoView)
{
    scan("PET1");
    scan("BEER");
    for (int count = 0; count < 12; ++count)
        scan("CAN3");
    EXPECT_FALSE(shelf().viewport()->rect().intersects(roomOf(0)));

    select({2});

    EXPECT_TRUE(shelf().viewport()->rect().contains(roomOf(0).center()));
}

TEST_F(ShelfTest, SelectedVessel_BringsItsGoodsIntoView)
{
    scan("CAN3");
    scan("BEER");
    for (int count = 0; count < 30; ++count)
        scan("BAG");
    const auto place = [this] { return window->table().visualRect(rows().index(1, 0)); };
    EXPECT_FALSE(window->table().viewport()->rect().intersects(place()));

    selectVessel(0);

    EXPECT_TRUE(window->table().viewport()->rect().contains(place().center()));
}

TEST_F(ShelfTest, GoodsThatLieNowhere_DimNothing)
{
    scan("CAN3");
    scan("BEER");
    scan("DARK");
    answer({true});
    select({3});
    click("storno");
    select({2});
    EXPECT_TRUE(shelf().vessels().lightsAny());

    select({3});

    EXPECT_FALSE(shelf().vessels().lightsAny());
}

} // namespace

} // namespace till
