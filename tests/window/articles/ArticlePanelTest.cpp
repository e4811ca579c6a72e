#include "tests/window/support/WindowTest.h"
#include "window/articles/ArticleModel.h"

#include <QtTest/QAbstractItemModelTester>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListView>

namespace till {

namespace {

class ArticlePanelTest : public WindowTest
{
protected:
    QListView &tiles() const { return find<QListView>("tiles"); }
    QLineEdit &code() const { return find<QLineEdit>("code"); }
    QStringList shownCodes() const
    {
        const auto &articles = static_cast<const ArticleModel &>(*tiles().model());
        QStringList codes;
        for (int row = 0; row < articles.rowCount(); ++row)
            codes.append(articles.articleAt(row).code);
        return codes;
    }
    //! What stands in place of tiles; empty when there are any.
    QString nothing() const
    {
        const QLabel &label = find<QLabel>("nothingFound");
        EXPECT_EQ(label.isVisible(), shownCodes().isEmpty());
        return label.isVisible() ? label.text() : QString();
    }
    void search(const QString &text)
    {
        click("search");
        type(text);
    }
};

TEST_F(ArticlePanelTest, Tiles_AreHighEnoughToTouch)
{
    for (int row = 0; row < tiles().model()->rowCount(); ++row)
        EXPECT_GE(tiles().visualRect(tiles().model()->index(row, 0)).height(), 44);
}

TEST_F(ArticlePanelTest, EveryArticle_HasATile)
{
    EXPECT_EQ(shownCodes().size(), till->catalogue().articles().size());
}

TEST_F(ArticlePanelTest, Model_HoldsWhatModelsPromise)
{
    const QAbstractItemModelTester tester(tiles().model(),
                                          QAbstractItemModelTester::FailureReportingMode::Warning);

    search("БУТ");
    click("group1");
}

TEST_F(ArticlePanelTest, TouchedTile_IsAdded)
{
    touchTile("CAN3");

    EXPECT_EQ(commands(), (QStringList{"open sale: done", "add CAN3 1: done"}));
    EXPECT_EQ(said(1), "CAN3 Канистра 3 л\n0 / 3, empty");
}

TEST_F(ArticlePanelTest, FirstTara_IsFilledWithTwoTouches)
{
    touchTile("PET1");
    touchTile("BEER");

    EXPECT_EQ(said(1), "PET1 Бутылка ПЭТ 1 л\n1 / 1 л, full: pos. 2 — 1");
}

TEST_F(ArticlePanelTest, NumberInTheCodeField_IsTheCountOfATile)
{
    click("code");
    type("2.5");

    touchTile("BEER");

    EXPECT_EQ(commands().constLast(), "add BEER 2.5: done");
    EXPECT_EQ(code().text(), "");
}

TEST_F(ArticlePanelTest, Group_LeavesItsArticles)
{
    click("group1");
    EXPECT_TRUE(shownCodes().contains("PET1"));
    EXPECT_FALSE(shownCodes().contains("BEER"));
    EXPECT_FALSE(shownCodes().contains("BAG"));

    click("group2");
    EXPECT_FALSE(shownCodes().contains("PET1"));
    EXPECT_TRUE(shownCodes().contains("BEER"));

    click("group3");
    EXPECT_TRUE(shownCodes().contains("BAG"));

    click("group0");
    EXPECT_EQ(shownCodes().size(), till->catalogue().articles().size());
}

TEST_F(ArticlePanelTest, Search_FiltersAsOneTypes)
{
    search("п");
    const qsizetype more = shownCodes().size();
    type("иВо");

    EXPECT_GT(more, shownCodes().size());
    EXPECT_EQ(shownCodes(), (QStringList{"BEER", "DARK", "WHEAT", "BEER3"}));
}

TEST_F(ArticlePanelTest, SearchInAGroup_LeavesWhatIsInBoth)
{
    click("group1");

    search("стекл");

    EXPECT_EQ(shownCodes(), (QStringList{"GLASS1", "JAR05"}));
}

TEST_F(ArticlePanelTest, FoundTile_IsAddedByKeys)
{
    press(Qt::Key_F3);
    type("квас");
    press(Qt::Key_Down);
    press(Qt::Key_Return);

    EXPECT_EQ(commands().constLast(), "add KVASS 1: done");
}

TEST_F(ArticlePanelTest, ScannedCode_IsAdded_AndTheFieldIsEmpty)
{
    scan("PET1");

    EXPECT_EQ(commands().constLast(), "add PET1 1: done");
    EXPECT_EQ(code().text(), "");
}

TEST_F(ArticlePanelTest, CountBeforeTheCode_IsTheQuantity)
{
    scan("3*BEER");

    EXPECT_EQ(commands().constLast(), "add BEER 3: done");
}

TEST_F(ArticlePanelTest, UnknownCode_IsRefused_AndStaysToBeTypedOver)
{
    scan("PET11");

    EXPECT_EQ(commands().constLast(), "add PET11 1: mistake");
    EXPECT_EQ(told(), "no article \"PET11\" in the catalogue; did you mean 'PET1'?");
    EXPECT_EQ(code().selectedText(), "PET11");
}

TEST_F(ArticlePanelTest, ScannerThatTypesElsewhere_IsHeard)
{
    scan("PET1");
    select({1});
    window->table().setFocus();

    type("BEER");
    press(Qt::Key_Return);

    EXPECT_EQ(commands().constLast(), "add BEER 1: done");
}

TEST_F(ArticlePanelTest, ScannerThatTypesIntoTheTiles_IsHeard)
{
    touchTile("CAN3");

    type("BEER");
    press(Qt::Key_Return);

    EXPECT_EQ(commands().constLast(), "add BEER 1: done");
    EXPECT_EQ(commands().size(), 3);
}

TEST_F(ArticlePanelTest, TileReachedByKeys_IsAddedBySpaceAndByEnter)
{
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
        touchTile("PET1");
        press(Qt::Key_Right);
        const auto &articles = static_cast<const ArticleModel &>(*tiles().model());
        const QString next = articles.articleAt(tiles().currentIndex().row()).code;

        press(key);

        EXPECT_NE(next, "PET1");
        EXPECT_EQ(commands().constLast(), "add " + next + " 1: done");
    }
}

TEST_F(ArticlePanelTest, SearchWithoutHits_SaysSo_AndTheWayOut)
{
    EXPECT_EQ(nothing(), "");

    search("lemonade");

    EXPECT_EQ(nothing(), "No article contains \"lemonade\": clear the search");
    press(Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(nothing(), "Нет товаров, содержащих \"lemonade\": очистите поиск");
}

TEST_F(ArticlePanelTest, SearchWithoutHitsInAGroup_NamesTheGroupsToo)
{
    click("group1");

    search("квас");

    EXPECT_EQ(nothing(), "No article of this group contains \"квас\": choose \"All\", or clear the "
                         "search");
    click("group0");
    EXPECT_EQ(nothing(), "");
}

TEST_F(ArticlePanelTest, GroupWithoutArticles_SaysSo)
{
    till::Setup small = setup();
    small.catalogue = path("small.csv");
    overwrite(small.catalogue,
              "code,name,price,tara mode,tara capacity,pack,unit\nBAG,Bag,5,0,,1,\n");
    open(small);

    click("group1");

    EXPECT_EQ(nothing(), "This group has no articles: choose \"All\"");
}

TEST_F(ArticlePanelTest, EnterWithoutHits_StaysInTheSearch)
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Down}) {
        search("lemonade");

        press(key);

        EXPECT_TRUE(find("search").hasFocus());
    }
}

TEST_F(ArticlePanelTest, QuantityWithoutACode_SaysWhatIsExpected)
{
    for (const char *const text : {"3*", "12x"}) {
        scan(text);

        EXPECT_EQ(told(), QStringLiteral("\"%1\" is a quantity: scan or type a code behind it, or "
                                         "touch a tile")
                              .arg(text));
        EXPECT_EQ(code().text(), text);
    }
    EXPECT_EQ(commands(), QStringList());
    touchTile("BEER");
    EXPECT_EQ(commands().constLast(), "add BEER 12: done");
}

TEST_F(ArticlePanelTest, Accessible_EveryTileSaysNameCodeAndPrice)
{
    EXPECT_EQ(tiles().model()->index(0, 0).data(Qt::AccessibleTextRole),
              "Бутылка ПЭТ 0,5 л, PET05, 7.00");
}

} // namespace

} // namespace till
