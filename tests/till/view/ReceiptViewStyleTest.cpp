#include "tests/support/Printers.h"
#include "tests/till/view/ShownReceipt.h"

#include <gmock/gmock.h>

using till::TaraControl;

namespace {

//! The same texts on a terminal and in a pipe; questions and messages.
class ReceiptViewStyle : public ShownReceipt
{
};

QString withoutCodes(QString text)
{
    return text.remove(QRegularExpression("\x1b\\[[0-9;]*m"));
}

TEST_F(ReceiptViewStyle, Colour_StrikesStornoedRow)
{
    sellOfEverything();
    const QString stornoed = row(3);
    ASSERT_TRUE(stornoed.startsWith("x "));
    style.colour = true;

    EXPECT_TRUE(shown().split('\n').contains("x \x1b[9m" + stornoed.mid(2) + "\x1b[0m"))
        << shown().toStdString();
}

TEST_F(ReceiptViewStyle, Colour_PaintsTheBar)
{
    addTara(5.0, 2.0);
    style.colour = true;

    EXPECT_THAT(shown().toStdString(), testing::HasSubstr("\x1b[32m[######....]\x1b[0m 3 / 5, "));
}

TEST_F(ReceiptViewStyle, ColourWithoutItsCodes_IsThePlainText)
{
    sellOfEverything();
    const QString plain = shown(TaraControl::Suspended);
    style.colour = true;

    EXPECT_EQ(withoutCodes(shown(TaraControl::Suspended)), plain);
}

TEST_F(ReceiptViewStyle, Plain_HasNotOneEscape)
{
    sellOfEverything();
    addTara(1.0, -1.0);
    addBeer(3.0, {{"{gone}", 1.0}});

    EXPECT_FALSE(shown(TaraControl::Suspended).contains('\x1b'));
}

TEST_F(ReceiptViewStyle, EscapesInEveryText_AreKeptFromTheTerminal)
{
    const QString escape("\x1b[5m");
    receipt.setOrder(QSharedPointer<Order>(new Order{escape}));
    receipt.addSoftCheck(escape);
    const int posnum = add({escape, escape, 100, Tmc::PackagingGoods, 0.0, 0.5, escape}, 1);
    taras.taras.append({posnum, escape, 1.0, 0.5});
    taras.goods.append({posnum, {{escape, 0.25}}});
    const tr::Tr hostile(escape, escape);

    EXPECT_FALSE(shown().contains('\x1b'));
    EXPECT_FALSE(view().renderQuestion({hostile, hostile, hostile}).contains('\x1b'));
}

tr::Tr emptyTara()
{
    return {"packingControlSaleEmptyTara",
            "В чеке есть пустая тара.\nСторнировать тару и перейти к оплате?"};
}

TEST_F(ReceiptViewStyle, Question_ShowsItsLinesAndTheChoices)
{
    const QString question = view().renderQuestion(
        {emptyTara(), {"dialogChoiceOk", "ОК"}, {"dialogChoiceCancel", "Отмена"}});

    EXPECT_EQ(question, "? В чеке есть пустая тара.\n"
                        "  Сторнировать тару и перейти к оплате?\n"
                        "  [ОК] [Отмена]\n");
}

TEST_F(ReceiptViewStyle, QuestionInEnglish_ShowsItsLinesAndTheChoices)
{
    language = "en";
    const QString question = view().renderQuestion(
        {emptyTara(), {"dialogChoiceOk", "ОК"}, {"dialogChoiceCancel", "Отмена"}});

    EXPECT_EQ(question, "? There is empty tara in the receipt.\n"
                        "  Storno the tara and go on to payment?\n"
                        "  [OK] [Cancel]\n");
}

TEST_F(ReceiptViewStyle, Message_ShowsItsLines)
{
    EXPECT_EQ(view().renderMessage({"k", "Тара частично заполнена.\nИзменение запрещено"}),
              "! Тара частично заполнена.\n  Изменение запрещено\n");
}

TEST_F(ReceiptViewStyle, ColouredMessage_PaintsEachLine)
{
    style.colour = true;

    EXPECT_EQ(view().renderMessage({"k", "Раз\nДва"}),
              "! \x1b[33mРаз\x1b[0m\n  \x1b[33mДва\x1b[0m\n");
}

TEST_F(ReceiptViewStyle, MessageWithEscape_ShowsSpaceInstead)
{
    EXPECT_EQ(view().renderMessage({"k", "Раз\x1b[31m"}), "! Раз [31m\n");
}

} // namespace
