#include "tests/window/support/WindowTest.h"

#include <QtCore/QTimer>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace till {

namespace {

class TillWindowTest : public WindowTest
{
protected:
    //! A receipt in which a tara is empty, of which the cashier is asked before subtotal.
    void makeEmptyTara()
    {
        till::Setup strict = setup();
        strict.settings.insert("PackagingControl:allowSaleEmptyTara", "false");
        open(strict);
        scan("PET1");
        scan("BEER");
        scan("CAN3");
    }
    QString page() const { return find("faultPage").isVisible() ? "fault" : "register"; }
};

TEST_F(TillWindowTest, QuestionOfThePlugin_HasItsTextsAndChoices)
{
    makeEmptyTara();
    QStringList choices;
    whileAsked = [&](QWidget &question) {
        EXPECT_TRUE(question.isModal());
        for (const char *const name : {"confirm", "cancel"})
            choices.append(partOf<QPushButton>(question, name).text());
    };
    answer({true});

    click("subtotal");

    EXPECT_EQ(questions.constFirst(),
              "There is empty tara in the receipt.\nStorno the tara and go on to payment?");
    EXPECT_EQ(choices, (QStringList{"OK", "Cancel"}));
    EXPECT_EQ(commands().constLast(), "subtotal: done");
}

TEST_F(TillWindowTest, DeclinedQuestion_StopsTheCommand)
{
    makeEmptyTara();
    answer({false});

    click("subtotal");

    EXPECT_EQ(commands().constLast(), "subtotal: refused");
    EXPECT_EQ(told(),
              "\"There is empty tara in the receipt. Storno the tara and go on to payment?\" "
              "was answered no");
    EXPECT_EQ(receipt()->state(), ReceiptState::Open);
}

TEST_F(TillWindowTest, DeclinedQuestion_IsToldInTheLanguageThatIsChosenAfterwards)
{
    scan("BAG");
    answer({false});
    click("cancelReceipt");

    window->setLanguage("ru");

    EXPECT_EQ(told(), "На вопрос \"Отменить чек?\" ответили \"нет\"");
}

TEST_F(TillWindowTest, ScannerThatTypesIntoAQuestion_DoesNotSayYes)
{
    scan("BAG");
    whileAsked = [this](QWidget &) {
        type("PET1");
        press(Qt::Key_Return);
    };

    click("cancelReceipt");

    EXPECT_EQ(receipt()->state(), ReceiptState::Open);
    EXPECT_EQ(receipt()->lines().size(), 1);
    EXPECT_EQ(told(), "\"Cancel the receipt?\" was answered no");
}

TEST_F(TillWindowTest, Escape_Declines)
{
    scan("BAG");
    whileAsked = [this](QWidget &) { press(Qt::Key_Escape); };

    click("cancelReceipt");

    EXPECT_EQ(receipt()->state(), ReceiptState::Open);
}

TEST_F(TillWindowTest, WhileAQuestionStands_TheWindowDoesNotClose)
{
    scan("BAG");
    whileAsked = [this](QWidget &question) {
        EXPECT_FALSE(window->close());
        EXPECT_TRUE(window->isVisible());
        EXPECT_TRUE(question.isVisible());
    };
    answer({true});

    click("cancelReceipt");

    EXPECT_EQ(receipt()->state(), ReceiptState::Cancelled);
    EXPECT_TRUE(window->close());
}

TEST_F(TillWindowTest, RecordingThatIsNotSaved_KeepsTheWindowOpenUntilItMayGo)
{
    const auto closeAndSay = [this](QMessageBox::StandardButton answer) {
        QTimer::singleShot(0, window.get(), [this, answer] {
            click(*dynamic_cast<QMessageBox &>(top()).button(answer));
        });
        return window->close();
    };
    press(Qt::Key_F10);
    click("scriptRecord");
    scan("BAG");

    EXPECT_FALSE(closeAndSay(QMessageBox::No));
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(closeAndSay(QMessageBox::Yes));
}

TEST_F(TillWindowTest, WhileAQuestionStands_NothingElseIsDone)
{
    scan("BAG");
    scan("PET1");
    whileAsked = [this](QWidget &) {
        for (const char *const name : {"quantity", "storno", "subtotal", "pay", "openSale"}) {
            QWidget &button = partOf<QWidget>(*window, name);
            QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {},
                              button.mapTo(window.get(), button.rect().center()));
            QTest::mouseClick(&button, Qt::LeftButton); // as if the dialog did not keep it away
        }
        for (const Qt::Key key : {Qt::Key_F4, Qt::Key_F11, Qt::Key_F12})
            QTest::keyClick(window->windowHandle(), key);
        window->switchOn();
        EXPECT_EQ(window->carryOut(command::Pay{}).reason.key(), "tillBusy");
        EXPECT_FALSE(till->stop());
    };
    const qsizetype before = commands().size();

    click("cancelReceipt");

    EXPECT_EQ(commands().mid(before), QStringList{"cancel: refused"});
    EXPECT_EQ(page(), "register");
    EXPECT_EQ(receipt()->state(), ReceiptState::Open);
}

TEST_F(TillWindowTest, TimerInAQuestion_DoesAndStoresNothing)
{
    scan("BAG");
    Outcome outcome;
    whileAsked = [&](QWidget &) {
        QTimer::singleShot(0, window.get(),
                           [&] { outcome = window->carryOut(command::Add{"PET1"}); });
        QCoreApplication::processEvents();
    };

    click("cancelReceipt");

    EXPECT_EQ(outcome.reason.key(), "tillBusy");
    EXPECT_EQ(receipt()->lines().size(), 1);
    EXPECT_EQ(commands().constLast(), "cancel: refused");
}

TEST_F(TillWindowTest, AfterAQuestion_CommandsCanBeHadAgain)
{
    scan("BAG");

    click("cancelReceipt");
    QCoreApplication::processEvents();

    EXPECT_TRUE(find("pay").isEnabled());
}

TEST_F(TillWindowTest, RefusalOfThePlugin_IsToldAcrossTheWindow)
{
    scan("CAN3");
    scan("BEER");
    scan("DARK");
    select({1});
    click("quantity");

    enter("2");

    EXPECT_EQ(commands().constLast(), "qty 1 2: refused");
    EXPECT_EQ(told(), "The tara is used by different goods.\nChanging the quantity is not allowed");
    EXPECT_TRUE(window->banner().isVisible());
}

TEST_F(TillWindowTest, Message_GoesByItself)
{
    press(Qt::Key_F12);
    EXPECT_TRUE(window->banner().isTelling());

    window->banner().setLifetime(1);

    EXPECT_TRUE(QTest::qWaitFor([this] { return !window->banner().isTelling(); }, patience));
    EXPECT_TRUE(find("header").isVisible());
}

TEST_F(TillWindowTest, Message_GoesWhenItIsTouched)
{
    press(Qt::Key_F12);

    click(window->banner());

    EXPECT_FALSE(window->banner().isTelling());
}

TEST_F(TillWindowTest, Message_ChangesItsLanguage)
{
    const auto inRussian = [this] {
        press(Qt::Key_L, Qt::ControlModifier);
        const QString text = told();
        press(Qt::Key_L, Qt::ControlModifier);
        return text;
    };
    EXPECT_EQ(inRussian(), "");
    press(Qt::Key_F12);
    EXPECT_EQ(inRussian(), "Нет открытого чека");
    scan("PET11");
    EXPECT_EQ(inRussian(), "В каталоге нет товара \"PET11\"; может быть, PET1?");
    scan("CAN3");
    scan("BEER");
    scan("DARK");
    select({1});
    click("quantity");
    enter("2");
    EXPECT_TRUE(inRussian().startsWith("Тара используется")) << inRussian().toStdString();
    EXPECT_TRUE(told().startsWith("The tara is used")) << told().toStdString();
}

TEST_F(TillWindowTest, WhatWasDone_IsThereAtTheNextStart)
{
    scan("PET1");
    scan("BEER");

    open(setup());

    EXPECT_EQ(said(1), "PET1 Бутылка ПЭТ 1 л\n1 / 1 л, full: pos. 2 — 1");
}

} // namespace

} // namespace till
