#include "tests/till/support/FailingDisk.h"
#include "tests/till/support/Sql.h"
#include "tests/window/support/WindowTest.h"

#include <QtWidgets/QPushButton>

namespace till {

namespace {

class WindowFaultTest : public WindowTest
{
protected:
    //! Opens a window that must tell of a fault; what it says of it.
    QString faultOf(const till::Setup &setup)
    {
        open(setup);
        EXPECT_TRUE(find("faultPage").isVisible());
        EXPECT_FALSE(find("receipt").isVisible());
        return Fault{part("place"), part("reason"), part("remedy")}.text();
    }
    QString part(const QString &name) const
    {
        const QLabel &label = find<QLabel>(name);
        EXPECT_EQ(label.isVisible(), !label.text().isEmpty());
        return label.text();
    }
    //! Does \a statement to the database, which nobody has open.
    void alter(const QString &statement) { rowsOf(setup().database, statement); }
    //! What a console says of it, with the window closed.
    QString consoleOf(const till::Setup &setup)
    {
        close();
        CashDesk desk(setup, notes);
        return faultText(desk.start());
    }
};

TEST_F(WindowFaultTest, MissingPlugin_IsToldAsOnAConsole)
{
    till::Setup without = setup();
    without.plugin = path("no.so");

    const QString fault = faultOf(without);

    EXPECT_TRUE(fault.contains(path("no.so"))) << fault.toStdString();
    EXPECT_EQ(part("remedy"), "name another plugin with --plugin, or --no-plugin for none");
    EXPECT_EQ(fault, consoleOf(without));
}

TEST_F(WindowFaultTest, DatabaseInUse_IsToldAsOnAConsole)
{
    close();
    const auto storage = must(Storage::open(setup().database));

    const QString fault = faultOf(setup());

    EXPECT_TRUE(fault.contains(setup().database)) << fault.toStdString();
    EXPECT_EQ(fault, consoleOf(setup()));
}

TEST_F(WindowFaultTest, OnceTheDatabaseIsFree_TheTillGoesOn)
{
    close();
    auto storage = must(Storage::open(setup().database));
    faultOf(setup());
    storage.reset();

    click("goOn");
    scan("BAG");

    EXPECT_FALSE(find("faultPage").isVisible());
    EXPECT_EQ(commands().constLast(), "add BAG 1: done");
}

TEST_F(WindowFaultTest, DamagedDatabase_IsToldAsOnAConsole)
{
    close();
    overwrite(setup().database, "this is no database, however long it is");

    const QString fault = faultOf(setup());

    EXPECT_TRUE(fault.contains(setup().database)) << fault.toStdString();
    EXPECT_EQ(fault, consoleOf(setup()));
}

TEST_F(WindowFaultTest, DamagedReceipt_IsToldWithItsNumberAndTheWayOn)
{
    scan("PET1");
    close();
    alter("UPDATE positions SET price = -100");

    const QString fault = faultOf(setup());

    EXPECT_TRUE(fault.contains("receipt 1")) << fault.toStdString();
    EXPECT_FALSE(part("remedy").isEmpty());
    EXPECT_EQ(fault, consoleOf(setup()));
}

TEST_F(WindowFaultTest, WithoutATill_NothingCanBeDone)
{
    till::Setup without = setup();
    without.catalogue = path("no.csv");
    faultOf(without);

    press(Qt::Key_F12);
    press(Qt::Key_N, Qt::ControlModifier);
    type("BAG");
    press(Qt::Key_Return);

    EXPECT_EQ(commands(), QStringList());
}

TEST_F(WindowFaultTest, FullDisk_IsToldOnAPage_AndTheReceiptIsAsBefore)
{
    scan("BAG");
    FailingDisk disk(directory.path());
    disk.leaveRoomFor(0);
    scan("PET1");
    disk.repair();
    EXPECT_FALSE(part("remedy").isEmpty());
    press(Qt::Key_L, Qt::ControlModifier);
    EXPECT_TRUE(part("reason").startsWith("Не удалось сохранить")) << part("reason").toStdString();
    press(Qt::Key_L, Qt::ControlModifier);

    EXPECT_TRUE(find("faultPage").isVisible());
    EXPECT_TRUE(part("reason").startsWith("could not be stored")) << part("reason").toStdString();
    click("goOn");
    EXPECT_EQ(rows().rowCount(), 1);
    scan("PET1");
    EXPECT_EQ(rows().rowCount(), 2);
}

//! The page, which a command that came to nothing brought up.
class FaultPageTyped : public WindowFaultTest
{
protected:
    FaultPageTyped()
    {
        scan("BAG");
        FailingDisk disk(directory.path());
        disk.leaveRoomFor(0);
        scan("PET1");
        disk.repair();
        EXPECT_TRUE(find("faultPage").isVisible());
    }
    QString code() const { return find<QLineEdit>("code").text(); }
};

TEST_F(FaultPageTyped, ScannedCode_DoesNotReachTheRegister_NorLeaveThePage)
{
    const qsizetype before = commands().size();
    const QString kept = code();

    type("BEER");
    press(Qt::Key_Return);

    EXPECT_TRUE(find("faultPage").isVisible());
    EXPECT_EQ(code(), kept);
    EXPECT_EQ(commands().size(), before);
}

TEST_F(FaultPageTyped, KeysOfTheRegister_DoNothing)
{
    const qsizetype before = commands().size();
    const QString kept = code();

    for (const Qt::Key key : {Qt::Key_F3, Qt::Key_Escape, Qt::Key_Up, Qt::Key_F12}) {
        press(key);
        type("BEER");
    }

    EXPECT_EQ(&top(), window.get());
    EXPECT_EQ(find<QLineEdit>("search").text(), "");
    EXPECT_EQ(code(), kept);
    EXPECT_EQ(commands().size(), before);
}

TEST_F(FaultPageTyped, SpaceAndEnterByThemselves_LeadBack)
{
    press(Qt::Key_Return);
    EXPECT_FALSE(find("faultPage").isVisible());
    EXPECT_TRUE(find("code").hasFocus());

    FailingDisk disk(directory.path());
    disk.leaveRoomFor(0);
    scan("PET1");
    disk.repair();
    press(Qt::Key_Space);
    EXPECT_FALSE(find("faultPage").isVisible());
}

} // namespace

} // namespace till
