#include "tests/window/support/WindowTest.h"

// What the window shows while it is at work.

namespace till {

namespace {

using Work = WindowTest;

TEST_F(Work, Command_IsShownBeforeItBegins)
{
    QStringList shown;
    const Subscription hears = notes.subscribe([&](const QJsonObject &note) {
        if (note.value("kind") != QLatin1String("action"))
            return;
        const QLabel &work = find<QLabel>("work");
        shown.append(work.text());
        EXPECT_GE(work.width(), work.sizeHint().width());
        EXPECT_FALSE(work.geometry().intersects(find("control").geometry()));
    });

    scan("PET1");

    EXPECT_FALSE(shown.isEmpty());
    EXPECT_EQ(shown.constFirst(), "at work, please wait");
    whileAsked = [this](QWidget &) { EXPECT_EQ(textOf("work"), ""); }; // the cashier is waited for
    click("cancelReceipt");
    EXPECT_EQ(textOf("work"), "");
}

TEST_F(Work, LineOfAScript_IsShownToo)
{
    openScript("open\nadd PET1\n");
    QStringList shown;
    const Subscription hears = notes.subscribe([&](const QJsonObject &note) {
        if (note.value("kind") == QLatin1String("action"))
            shown.append(textOf("work"));
    });

    click("scriptStep");
    click("scriptStep");

    EXPECT_EQ(shown.value(0), "at work, please wait");
    EXPECT_EQ(textOf("work"), "");
}

TEST_F(Work, WhileAScriptRuns_CommandsShowWhatCanBeDone)
{
    openScript("open\n" + QByteArray("add BAG\n").repeated(20));
    bool couldPay = false;
    const Subscription hears = notes.subscribe([&](const QJsonObject &note) {
        if (note.value("kind") == QLatin1String("outcome"))
            couldPay = find("pay").isEnabled();
    });

    click("scriptRun");

    EXPECT_TRUE(QTest::qWaitFor([this] { return find("scriptOpen").isEnabled(); }, patience));
    EXPECT_EQ(receipt()->lines().size(), 20);
    EXPECT_TRUE(couldPay);
}

} // namespace

} // namespace till
