#include "window/archive/ReceiptsPanel.h"

#include "tests/till/support/Sql.h"
#include "tests/window/support/ModelTexts.h"
#include "tests/window/support/PartTest.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTextBrowser>

namespace till {

namespace {

//! The panel in English, with two receipts behind it and a third under way.
class PastReceipts : public PartTest
{
protected:
    PastReceipts()
    {
        done({"open", "add CAN3", "add BEER 2", "answer yes", "storno 1", "add CHIPS", "pay",
              "open return", "add CHIPS", "answer yes", "cancel", "open", "add PET1"});
        database = path("till.sqlite");
        putUp(panel);
    }

    QTableView &list() const { return part<QTableView>("receiptList"); }
    QString page() const { return part<QTextBrowser>("receiptPage").toPlainText(); }
    QStringList numbers() const { return textsOf(*list().model()); }

    void clickRow(int row) { click(list(), list().model()->index(row, 0)); }
    void find(const QString &number)
    {
        auto &field = part<QLineEdit>("receiptNumber");
        QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&field, number);
        QTest::keyClick(&field, Qt::Key_Return);
    }

    QString database;
    ReceiptsPanel panel{[this] { return database; }, Translator("en")};
};

TEST_F(PastReceipts, WhenSeen_AreListed)
{
    EXPECT_EQ(numbers(), (QStringList{"3", "2", "1"}));
    EXPECT_EQ(part<QLabel>("receiptCount").text(), "Receipts: 3");
}

TEST_F(PastReceipts, Click_ShowsTheReceiptAndItsCourse)
{
    clickRow(2);
    EXPECT_TRUE(page().startsWith("Receipt No. 1 · closed")) << page().toStdString();
    EXPECT_TRUE(page().contains("CHIPS"));
    EXPECT_TRUE(page().contains("129.90"));
    EXPECT_TRUE(page().contains("add BEER 2"));
}

TEST_F(PastReceipts, DamagedDataOfAPlugin_AreToldBelowTheLines)
{
    rowsOf(database, "UPDATE pluginData SET value = x'00' WHERE receipt = 1 AND key = 'taraInfo'");

    clickRow(2);

    EXPECT_TRUE(page().contains("129.90")) << page().toStdString();
    EXPECT_TRUE(page()
                    .section("TOTAL", 1)
                    .section("Course", 0, 0)
                    .contains("Receipt 1 is damaged: the data of plugin \"PackagingControl\" under "
                              "\"taraInfo\" are "
                              "damaged"))
        << page().toStdString();
    EXPECT_TRUE(page().contains("add BEER 2"));
}

TEST_F(PastReceipts, DamagedReceipt_IsNotShown)
{
    rowsOf(database, "UPDATE positions SET price = 1 WHERE receipt = 1 AND posnum = 3");

    clickRow(2);

    EXPECT_EQ(page(), "Receipt 1 is damaged: position 3 is not as it was stored");
}

TEST_F(PastReceipts, Keys_GoFromOneToTheNext)
{
    clickRow(0);
    QTest::keyClick(&list(), Qt::Key_Down);
    EXPECT_TRUE(page().startsWith("Return No. 2 · cancelled")) << page().toStdString();
}

TEST_F(PastReceipts, StornoedLine_IsStruckThrough)
{
    clickRow(2);
    EXPECT_TRUE(part<QTextBrowser>("receiptPage").toHtml().contains("line-through"));
}

TEST_F(PastReceipts, State_LeavesOthersOut)
{
    auto &states = part<QComboBox>("receiptStates");
    states.setFocus();
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(&states, Qt::Key_Down);
    EXPECT_EQ(states.currentText(), "cancelled");
    EXPECT_EQ(numbers(), QStringList{"2"});
}

TEST_F(PastReceipts, Number_OpensTheReceipt)
{
    find("2");
    EXPECT_TRUE(page().startsWith("Return No. 2"));
}

TEST_F(PastReceipts, NumberOfNone_IsSaid)
{
    find("77");
    EXPECT_EQ(page(), "There is no receipt 77");
    find("seven");
    EXPECT_EQ(page(), "\"seven\" is no number of a receipt");
}

TEST_F(PastReceipts, ReadAnew_HasWhatCameMeanwhile)
{
    done({"add BEER", "pay"});
    clickRow(0);
    EXPECT_TRUE(page().startsWith("Receipt No. 3 · closed"));
    done({"open", "add CHIPS"});
    EXPECT_EQ(numbers().size(), 3);
    click("receiptsRead");
    EXPECT_EQ(numbers(), (QStringList{"4", "3", "2", "1"}));
    EXPECT_TRUE(page().startsWith("Receipt No. 3 · closed"));
}

TEST_F(PastReceipts, Looking_ChangesNothing)
{
    heard.clear();
    clickRow(2);
    find("1");
    EXPECT_TRUE(heard.isEmpty());
    expect({"state open", "positions 1"});
}

TEST_F(PastReceipts, DatabaseThatIsGone_IsSaidWithItsPlace)
{
    database = path("none.sqlite");
    click("receiptsRead");
    EXPECT_TRUE(page().startsWith(path("none.sqlite") + ": ")) << page().toStdString();
    EXPECT_TRUE(numbers().isEmpty());
}

TEST_F(PastReceipts, OtherLanguage_ChangesTheOpenReceiptToo)
{
    clickRow(2);
    panel.translate(Translator("ru"));
    EXPECT_TRUE(page().startsWith("Чек № 1 · закрыт")) << page().toStdString();
    EXPECT_EQ(part<QPushButton>("receiptsRead").text(), "Прочитать заново");
}

TEST_F(PastReceipts, Names_AreNoMarkup)
{
    overwrite(path("b.csv"), "code;name;price;tara mode;tara capacity;pack;unit\n"
                             "X;\"<b>&amp;</b>\";1,00;0;0;1;pcs\n");
    till::Setup odd = setup();
    odd.catalogue = path("b.csv");
    odd.database = path("odd.sqlite");
    start(odd);
    done({"open", "add X", "pay"});
    database = odd.database;
    find("1");
    EXPECT_TRUE(page().contains("<b>&amp;</b>")) << page().toStdString();
}

TEST_F(PastReceipts, WhatCanBeTouched_HasAName)
{
    for (const char *name : {"receiptStates", "receiptNumber", "receiptList", "receiptPage"})
        EXPECT_FALSE(part<QWidget>(name).accessibleName().isEmpty()) << name;
}

TEST_F(PastReceipts, RowAfterANumberOfNone_OpensAgain)
{
    clickRow(2);
    find("77");
    EXPECT_TRUE(list().selectionModel()->selectedRows().isEmpty());

    clickRow(2);

    EXPECT_TRUE(page().startsWith("Receipt No. 1")) << page().toStdString();
}

TEST_F(PastReceipts, OtherLanguage_ChangesWhatIsWrongToo)
{
    find("77");

    panel.translate(Translator("ru"));

    EXPECT_FALSE(page().contains("There is no receipt")) << page().toStdString();
    EXPECT_TRUE(page().contains("77")) << page().toStdString();
}

TEST_F(PastReceipts, DatabaseInMemory_IsNamedAsSuch)
{
    database = ":memory:";

    click("receiptsRead");

    EXPECT_EQ(page(), "The database is in memory: there is no file in which past receipts could be "
                      "looked up");
}

} // namespace

} // namespace till
