#include "window/desk/Deed.h"
#include "tests/window/support/WindowTest.h"

#include <QtCore/QRegularExpression>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace till {

namespace {

class DeedTest : public WindowTest
{
protected:
    //! What a question says it is about; empty when it does not.
    static QString aboutOf(const QWidget &question)
    {
        const QLabel *const about = question.findChild<QLabel *>("about");
        return about && about->isVisible() ? about->text() : QString();
    }
    //! Why the button of that name is disabled; empty when it is not.
    QString reasonOf(const QString &name)
    {
        QCoreApplication::processEvents();
        const QPushButton &button = find<QPushButton>(name);
        EXPECT_EQ(button.isEnabled(), button.accessibleDescription().isEmpty());
        if (!button.isEnabled()) {
            EXPECT_EQ(button.toolTip(), button.accessibleDescription());
        }
        return button.accessibleDescription();
    }
};

TEST_F(DeedTest, Storno_AsksAndStrikes)
{
    scan("BAG");
    answer({true});

    click("storno");

    EXPECT_EQ(commands().constLast(), "storno 1: done");
    EXPECT_TRUE(rows().isStornoed(0));
}

TEST_F(DeedTest, QuestionOfAStorno_NamesThePosition)
{
    QStringList abouts;
    const auto keep = [&](QWidget &question) { abouts.append(aboutOf(question)); };
    scan("BAG");
    scan("CHIPS");
    select({1});
    whileAsked = keep;
    click("storno");
    click(window->banner());
    click("language");
    whileAsked = keep;
    click("storno");

    EXPECT_EQ(abouts, (QStringList{"Position 1: Пакет подарочный", "Позиция 1: Пакет подарочный"}));
}

TEST_F(DeedTest, QuestionAboutTheReceipt_NamesNoPosition)
{
    scan("BAG");
    whileAsked = [](QWidget &question) { EXPECT_EQ(aboutOf(question), ""); };

    click("cancelReceipt");

    EXPECT_EQ(questions.size(), 1);
}

TEST_F(DeedTest, Unite_TakesTheSelected)
{
    scan("CAN3");
    scan("BEER");
    scan("BEER");
    select({2, 3});

    click("unite");

    EXPECT_EQ(commands().constLast(), "unite 2 3: done");
}

TEST_F(DeedTest, Order_SuspendsTaraControl)
{
    scan("CAN3");
    click("order");

    enter("A-17");

    EXPECT_EQ(commands().constLast(), "order A-17: done");
    EXPECT_EQ(find<QLabel>("control").text(), "◐ tara control suspended");
    EXPECT_EQ(reasonOf("order"), "the receipt has order A-17 already");
}

TEST_F(DeedTest, SoftCheck_IsAdded)
{
    scan("CAN3");
    click("softCheck");

    enter("5");

    EXPECT_EQ(commands().constLast(), "softcheck 5: done");
}

TEST_F(DeedTest, Subtotal_IsShownInTheHeader)
{
    scan("BAG");

    click("subtotal");

    EXPECT_EQ(find<QLabel>("header").text(), "Receipt No. 1 · subtotal");
}

TEST_F(DeedTest, Cancel_AsksAndCancels)
{
    scan("BAG");
    answer({true});

    click("cancelReceipt");

    EXPECT_EQ(receipt()->state(), ReceiptState::Cancelled);
    EXPECT_EQ(questions, QStringList{"Cancel the receipt?"});
}

TEST_F(DeedTest, Return_IsOpened)
{
    click("openReturn");

    EXPECT_EQ(commands().constLast(), "open return: done");
    EXPECT_EQ(receipt()->getType(), Document::Return);
}

TEST_F(DeedTest, WithoutAReceipt_OnlyANewOneCanBeHad)
{
    for (const DeedRow &row : deedRows()) {
        const bool opens = row.deed == Deed::OpenSale || row.deed == Deed::OpenReturn;
        EXPECT_EQ(reasonOf(row.name), opens ? "" : "no receipt is open") << row.name;
    }
}

TEST_F(DeedTest, EmptyReceipt_CannotBePaid)
{
    click("openSale");

    EXPECT_EQ(reasonOf("pay"), "There are no positions in the receipt");
    EXPECT_EQ(reasonOf("subtotal"), "There are no positions in the receipt");
    EXPECT_EQ(reasonOf("cancelReceipt"), "");
    EXPECT_EQ(reasonOf("openSale"), "a receipt is open already: pay or cancel it first");
}

TEST_F(DeedTest, NothingSelected_CannotBeChanged)
{
    scan("BAG");
    window->table().clearSelection();

    for (const char *const name : {"quantity", "storno", "split"})
        EXPECT_EQ(reasonOf(name), "Select one position in the receipt") << name;
}

TEST_F(DeedTest, StornoedPosition_CannotBeChanged)
{
    scan("BAG");
    answer({true});
    click("storno");

    select({1});

    for (const char *const name : {"quantity", "storno", "split"})
        EXPECT_EQ(reasonOf(name), "position 1 is stornoed") << name;
}

TEST_F(DeedTest, DifferentArticles_CannotBeUnited)
{
    scan("BAG");
    scan("CHIPS");
    EXPECT_EQ(reasonOf("unite"), "at least two positions must be named");

    select({1, 2});

    EXPECT_EQ(reasonOf("unite"), "positions 1 and 2 are of different articles");
}

TEST_F(DeedTest, DisabledButtonThatIsTouched_SaysWhy)
{
    click("pay");

    EXPECT_EQ(told(), "no receipt is open");
    EXPECT_EQ(commands(), QStringList());
}

TEST_F(DeedTest, KeyOfWhatIsImpossible_SaysWhy)
{
    press(Qt::Key_F12);

    EXPECT_EQ(told(), "no receipt is open");
    EXPECT_EQ(commands(), QStringList());
}

TEST_F(DeedTest, EachKey_IsInTheDocs)
{
    const QString page = QString::fromUtf8(contents(QStringLiteral(DOCS_DIR "/window.md")));
    for (const DeedRow &row : deedRows()) {
        const QString key = row.key.toString(QKeySequence::PortableText);
        EXPECT_TRUE(page.contains(
            QRegularExpression("\n\\|[^|]*\\b" + QRegularExpression::escape(key) + "\\b")))
            << key.toStdString();
    }
}

TEST_F(DeedTest, WholeReceipt_ByKeysAlone)
{
    const auto say = [this](Qt::Key key, const QString &entry) {
        press(key);
        enter(entry);
    };
    press(Qt::Key_N, Qt::ControlModifier);
    type("CAN3");
    press(Qt::Key_Return);
    type("2*BEER");
    press(Qt::Key_Return);
    say(Qt::Key_F2, "2.5");
    say(Qt::Key_F5, "1");
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_F6);
    press(Qt::Key_F11);
    say(Qt::Key_F12, "500");

    EXPECT_EQ(commands(), (QStringList{"open sale: done", "add CAN3 1: done", "add BEER 2: done",
                                       "qty 2 2.5: done", "split 2 1: done", "unite 2 3: done",
                                       "subtotal: done", "pay 500.00: done"}));
}

TEST_F(DeedTest, Unite_SelectsWhatRemains)
{
    scan("CAN3");
    scan("BEER");
    scan("BEER");
    select({2, 3});

    click("unite");

    const QList<int> selected = window->table().selectedPositions();
    ASSERT_EQ(selected.size(), 1);
    EXPECT_FALSE(rows().isStornoed(rows().rowOf(selected[0])));
    EXPECT_EQ(reasonOf("quantity"), "");
}

} // namespace

} // namespace till
