#include "tests/support/Printers.h"
#include "tests/till/view/ShownReceipt.h"
#include "till/view/DisplayText.h"

#include <gmock/gmock.h>

using testing::EndsWith;
using testing::StartsWith;
using till::TaraControl;

namespace {

class ReceiptView : public ShownReceipt
{
protected:
    QString header(TaraControl control = TaraControl::Active) const
    {
        return shown(control).section("\n  №", 0, 0);
    }

    int widestLine() const
    {
        const QStringList lines = shown().split('\n');
        int widest = 0;
        for (const QString &line : lines)
            widest = std::max(widest, till::displayWidth(line));
        return widest;
    }
};

TEST_F(ReceiptView, NoPositions_ShowsThatAndNoSum)
{
    receipt.setStored(12);

    EXPECT_EQ(shown(), QString(R"(Чек № 12 · открыт
  №  Товар                                                   Кол-во  Цена  Сумма
────────────────────────────────────────────────────────────────────────────────
     нет позиций
────────────────────────────────────────────────────────────────────────────────
  ИТОГО                                                                     0.00
)"));
}

TEST_F(ReceiptView, PositionsOfEachKind_ShowsTableWithStornoMarked)
{
    sellOfEverything();

    EXPECT_EQ(shown(), QString(R"(Чек № 12 · открыт
  №  Товар                                                Кол-во    Цена   Сумма
────────────────────────────────────────────────────────────────────────────────
  1  201 Бутылка ПЭТ 5 л                                    1 шт   25.00   25.00
     [######....] 3 / 5 л, свободно 2: поз. 2 — 3
  2  101 Пиво светлое                                        3 л  150.00  450.00
     в таре: поз. 1 — 3
x 3  102 Квас                                              1.5 л   80.50  120.75
  4  301 Орешки солёные, пакет                     3 шт = 0.6 кг   99.00  297.00
────────────────────────────────────────────────────────────────────────────────
  ИТОГО                                                                   772.00
)"));
}

TEST_F(ReceiptView, English_ShowsEnglishLabelsAndNamesAsTheyAre)
{
    sellOfEverything();
    language = "en";

    EXPECT_EQ(shown(TaraControl::Suspended),
              QString(R"(Receipt No. 12 · open · tara control suspended
  No.  Article                                          Quantity   Price     Sum
────────────────────────────────────────────────────────────────────────────────
    1  201 Бутылка ПЭТ 5 л                                  1 шт   25.00   25.00
       [######....] 3 / 5 л, free 2: pos. 2 — 3
    2  101 Пиво светлое                                      3 л  150.00  450.00
       in tara: pos. 1 — 3
x   3  102 Квас                                            1.5 л   80.50  120.75
    4  301 Орешки солёные, пакет                  3 pcs = 0.6 кг   99.00  297.00
────────────────────────────────────────────────────────────────────────────────
  TOTAL                                                                   772.00
)"));
}

TEST_F(ReceiptView, ManyPositions_AlignsTheirNumbers)
{
    for (int i = 0; i < 100; ++i)
        add(kvass(), 1);

    EXPECT_THAT(row(9).toStdString(), StartsWith("    9  102 Квас  "));
    EXPECT_THAT(row(100).toStdString(), StartsWith("  100  102 Квас  "));
}

TEST_F(ReceiptView, ArticleWithoutUnit_ShowsBareQuantity)
{
    till::ArticleData article = kvass();
    article.unit.clear();
    add(article, 2.5);

    EXPECT_THAT(row(1).toStdString(), EndsWith("    2.5  80.50  201.25"));
}

TEST_F(ReceiptView, LongName_IsElided)
{
    till::ArticleData article = kvass();
    article.name = QString(100, u'Ж');
    add(article, 1);

    EXPECT_EQ(row(1), QString("  1  102 ") + QString(48, u'Ж') + "…     1 л  80.50  80.50");
}

TEST_F(ReceiptView, LongUnit_IsElided)
{
    till::ArticleData article = kvass();
    article.unit = "килограмм";
    add(article, 1);

    EXPECT_THAT(row(1).toStdString(), EndsWith("  1 килог…  80.50  80.50"));
}

TEST_F(ReceiptView, LongTexts_FitEightyColumns)
{
    till::ArticleData article = nuts();
    article.name = QString("Е\u0308лки 漢字 ").repeated(20);
    article.price = 99'999'999;
    add(article, 12345.678);
    receipt.setOrder(QSharedPointer<Order>(new Order{QString(200, u'7')}));
    for (int i = 0; i < 30; ++i)
        receipt.addSoftCheck(QString::number(100'000 + i));
    for (int i = 0; i < 20; ++i)
        addTara(1.0, 0.5);
    QMap<QString, double> everywhere;
    for (int i = 2; i < 22; ++i)
        everywhere.insert(idOf(i), 0.5);
    addBeer(1000, everywhere);

    EXPECT_EQ(widestLine(), 80);
}

TEST_F(ReceiptView, EnormousNumbers_AreShownWholeInAWiderTable)
{
    till::ArticleData article = nuts();
    article.price = 999'999'999'999;
    add(article, 123456789.125);

    EXPECT_THAT(row(1).toStdString(),
                StartsWith("  1  301 Орешк…  123456789.125 шт = 24691357.825 кг"
                           "  9999999999.99  "));
}

TEST_F(ReceiptView, NameWithControlCharacters_ShowsSpacesInstead)
{
    till::ArticleData article = kvass();
    article.name = "К\x1b[31mв\nа\tс\u202e";
    add(article, 1);

    EXPECT_THAT(row(1).toStdString(), StartsWith("  1  102 К [31mв а с  "));
}

TEST_F(ReceiptView, TotalLongerThanEachSum_WidensItsColumn)
{
    till::ArticleData article = kvass();
    article.price = 50'000;
    add(article, 1);
    add(article, 1);

    EXPECT_THAT(row(1).toStdString(), EndsWith("  1 л  500.00   500.00"));
    EXPECT_EQ(widestLine(), 80);
}

TEST_F(ReceiptView, DocumentSwitchedOff_ShowsTotalComputedLast)
{
    add(kvass(), 1);
    receipt.setDocumentSwitch(false);
    add(kvass(), 1);

    EXPECT_THAT(shown().toStdString(), EndsWith(" 80.50\n"));
}

// The line above the table

TEST_F(ReceiptView, NumberlessReceipt_ShowsTypeAndState)
{
    EXPECT_EQ(header(), "Чек · открыт");
}

struct State
{
    till::ReceiptState state;
    const char *shown;
};

class ReceiptViewState : public ReceiptView, public testing::WithParamInterface<State>
{
};

TEST_P(ReceiptViewState, State_IsNamed)
{
    receipt.setState(GetParam().state);

    EXPECT_EQ(header(), QString("Чек · ") + GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(Each, ReceiptViewState,
                         testing::Values(State{till::ReceiptState::Open, "открыт"},
                                         State{till::ReceiptState::Subtotal, "подытог"},
                                         State{till::ReceiptState::Closed, "закрыт"},
                                         State{till::ReceiptState::Cancelled, "отменён"}));

TEST_F(ReceiptView, Return_IsNamed)
{
    const till::Receipt back(Document::Return);

    EXPECT_THAT(view().render(back, taras, TaraControl::Active).toStdString(),
                StartsWith("Возврат · открыт\n"));
}

TEST_F(ReceiptView, UnknownType_IsADocument)
{
    const till::Receipt other(7);

    EXPECT_THAT(view().render(other, taras, TaraControl::Active).toStdString(),
                StartsWith("Документ · открыт\n"));
}

TEST_F(ReceiptView, OrderAndSoftChecks_AreNamed)
{
    receipt.setOrder(QSharedPointer<Order>(new Order{"A-17"}));
    receipt.addSoftCheck("5");
    receipt.addSoftCheck("6");

    EXPECT_EQ(header(), "Чек · открыт · заказ A-17 · софт-чек 5 · софт-чек 6");
}

TEST_F(ReceiptView, SuspendedTaraControl_IsSaid)
{
    EXPECT_EQ(header(TaraControl::Suspended), "Чек · открыт · контроль тары приостановлен");
}

TEST_F(ReceiptView, AbsentTaraControl_IsSaid)
{
    EXPECT_EQ(header(TaraControl::Absent), "Чек · открыт · без контроля тары");
}

TEST_F(ReceiptView, HeaderOfEightyColumns_StaysInOneLine)
{
    receipt.setOrder(QSharedPointer<Order>(new Order{QString(29, u'7')}));

    EXPECT_EQ(header(TaraControl::Suspended),
              "Чек · открыт · заказ " + QString(29, u'7') + " · контроль тары приостановлен");
}

TEST_F(ReceiptView, HeaderOfEightyOneColumns_GoesOnInTheNextLine)
{
    receipt.setOrder(QSharedPointer<Order>(new Order{QString(30, u'7')}));

    EXPECT_EQ(header(TaraControl::Suspended),
              "Чек · открыт · заказ " + QString(30, u'7') + " ·\nконтроль тары приостановлен");
}

} // namespace
