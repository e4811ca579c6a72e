#include "window/receipt/ReceiptModel.h"
#include "tests/till/support/SampleShop.h"
#include "tests/window/support/WindowTest.h"

#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>

namespace till {

namespace {

//! The rows of a receipt that is made with commands, without a window.
class ReceiptModelTest : public FolderTest
{
protected:
    ReceiptModelTest()
        : desk(sampleShop(QStringLiteral(":memory:")), notes)
        , model(Translator(QStringLiteral("en")))
        , tester(&model, QAbstractItemModelTester::FailureReportingMode::Warning)
        , changed(&model, &QAbstractItemModel::dataChanged)
        , inserted(&model, &QAbstractItemModel::rowsInserted)
        , reset(&model, &QAbstractItemModel::modelReset)
    {
        must(desk.start());
        run({command::Open{}});
    }

    //! Carries these out and shows what became of the receipt.
    void run(const QList<Command> &commands)
    {
        for (const Command &command : commands)
            EXPECT_TRUE(desk.cashRegister().carryOut(command));
        model.show(ShownReceipt::of(desk.cashRegister()));
    }
    void forget()
    {
        changed.clear();
        inserted.clear();
        reset.clear();
    }
    QString text(int row, int column) const { return model.index(row, column).data().toString(); }
    QString spoken(int row) const
    {
        return model.index(row, ReceiptModel::ArticleName).data(Qt::AccessibleTextRole).toString();
    }
    //! The first and the last row of each change that was told.
    QList<QPair<int, int>> changedRows() const
    {
        QList<QPair<int, int>> rows;
        for (const QList<QVariant> &told : changed)
            rows.append({told[0].toModelIndex().row(), told[1].toModelIndex().row()});
        return rows;
    }

    Notes notes;
    CashDesk desk;
    ReceiptModel model;
    QAbstractItemModelTester tester; // what is wrong with the model is a warning, which fails
    QSignalSpy changed;
    QSignalSpy inserted;
    QSignalSpy reset;
};

using Rows = QList<QPair<int, int>>;

TEST_F(ReceiptModelTest, NoReceipt_HasNoRows)
{
    model.show(nullptr);

    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(ReceiptModelTest, Row_SaysWhatTheViewSays)
{
    run({command::Add{"PET1", 2}});

    EXPECT_EQ(text(0, ReceiptModel::Number), "1");
    EXPECT_EQ(text(0, ReceiptModel::ArticleName), "PET1 Бутылка ПЭТ 1 л");
    EXPECT_EQ(text(0, ReceiptModel::Count), "2 шт");
    EXPECT_EQ(text(0, ReceiptModel::Price), "9.00");
    EXPECT_EQ(text(0, ReceiptModel::Sum), "18.00");
}

TEST_F(ReceiptModelTest, RowOfAPosition_IsWhereItStands)
{
    run({command::Add{"CHIPS", 3}, command::Add{"PET1"}, command::Split{1, {1}}});

    EXPECT_EQ(model.rowOf(1), 0);
    EXPECT_EQ(model.rowOf(3), 2);
    EXPECT_EQ(model.rowOf(4), -1);
    model.show(nullptr);
    EXPECT_EQ(model.rowOf(1), -1);
}

TEST_F(ReceiptModelTest, WhileAChangeIsTold_NewRowsAreNotThereYet)
{
    run({command::Add{"CAN3"}});
    QList<int> rows;
    QObject::connect(&model, &QAbstractItemModel::dataChanged, &model,
                     [&] { rows.append(model.rowOf(2)); });
    QObject::connect(&model, &QAbstractItemModel::rowsInserted, &model,
                     [&] { rows.append(model.rowOf(2)); });

    run({command::Add{"BEER"}});

    EXPECT_EQ(rows, (QList<int>{-1, 1}));
}

TEST_F(ReceiptModelTest, Tara_SaysWhatIsInIt)
{
    run({command::Add{"PET15"}, command::Add{"BEER", 0.5}, command::Add{"DARK", 0.25}});

    EXPECT_EQ(spoken(0),
              "PET15 Бутылка ПЭТ 1,5 л\n0.75 / 1.5 л, free 0.75: pos. 2 — 0.5, pos. 3 — 0.25");
}

TEST_F(ReceiptModelTest, Tara_HasItsFillingInTheLookOfTheGoods)
{
    run({command::Add{"PET15"}, command::Add{"BEER", 0.5}, command::Add{"DARK", 0.25}});

    EXPECT_EQ(model.fillingAt(0),
              (Filling{1, 1.5, {{2, 0.5, GoodsLook::of(0)}, {3, 0.25, GoodsLook::of(1)}}}));
    EXPECT_EQ(model.lookAt(1), GoodsLook::of(0));
    EXPECT_EQ(model.lookAt(2), GoodsLook::of(1));
}

TEST_F(ReceiptModelTest, OtherGoods_HaveNeitherFillingNorLook)
{
    run({command::Add{"BAG"}});

    EXPECT_FALSE(model.fillingAt(0));
    EXPECT_FALSE(model.lookAt(0));
    EXPECT_EQ(spoken(0), "BAG Пакет подарочный");
}

TEST_F(ReceiptModelTest, Unplaced_IsSaidAsAWarning)
{
    run({command::Add{"PET1"}, command::Add{"BEER", 3}});

    const QList<Piece> said = model.notesAt(1);

    EXPECT_EQ(said.constLast().text, "not placed 2 л");
    EXPECT_EQ(said.constLast().paint, Paint::Red);
}

TEST_F(ReceiptModelTest, StornoedRow_IsMarked)
{
    run({command::Add{"BAG"}});
    EXPECT_FALSE(model.isStornoed(0));
    class Yes final : public Front
    {
        bool ask(const Question &) override { return true; }
        void show(const tr::Tr &) override {}
    } yes;
    const InstalledFront installed(desk.front(), yes);
    run({command::Storno{1}});

    EXPECT_TRUE(model.isStornoed(0));
    EXPECT_EQ(spoken(0), "BAG Пакет подарочный\nstornoed");
}

TEST_F(ReceiptModelTest, NewPosition_IsInserted_AndOnlyTheTaraChanges)
{
    run({command::Add{"BAG"}, command::Add{"PET1"}, command::Add{"CHIPS"}});
    forget();

    run({command::Add{"BEER", 0.5}});

    EXPECT_EQ(reset.count(), 0);
    EXPECT_EQ(inserted.count(), 1);
    EXPECT_EQ(changedRows(), (Rows{{1, 1}}));
}

TEST_F(ReceiptModelTest, NothingNew_TellsNothing)
{
    run({command::Add{"PET1"}, command::Add{"BEER", 0.5}});
    forget();

    run({});

    EXPECT_EQ(reset.count() + inserted.count() + changed.count(), 0);
}

TEST_F(ReceiptModelTest, RowsThatHangTogether_AreToldOnce)
{
    run({command::Add{"PET1"}, command::Add{"PET1"}, command::Add{"BAG"}});
    forget();

    run({command::Add{"BEER", 2}});

    EXPECT_EQ(changedRows(), (Rows{{0, 1}}));
}

TEST_F(ReceiptModelTest, NextReceipt_TakesThePlaceOfTheOneBefore)
{
    run({command::Add{"BAG"}, command::Add{"BAG"}, command::Pay{}});
    forget();

    run({command::Open{}, command::Add{"CHIPS"}});

    EXPECT_EQ(reset.count(), 1);
    EXPECT_EQ(model.rowCount(), 1);
}

TEST_F(ReceiptModelTest, OtherLanguage_ChangesEveryRow)
{
    run({command::Add{"PET1"}});
    forget();

    model.translate(Translator(QStringLiteral("ru")));

    EXPECT_EQ(changedRows(), (Rows{{0, 0}}));
    EXPECT_EQ(spoken(0), "PET1 Бутылка ПЭТ 1 л\n0 / 1, пусто");
    EXPECT_EQ(model.headerData(ReceiptModel::Sum, Qt::Horizontal, Qt::DisplayRole), "Сумма");
}

TEST_F(ReceiptModelTest, LitPositions_ChangeTheirRowsOnly)
{
    run({command::Add{"BAG"}, command::Add{"PET1"}, command::Add{"BEER"}});
    forget();

    model.setLit({3});

    EXPECT_TRUE(model.isLit(2));
    EXPECT_FALSE(model.isLit(1));
    EXPECT_EQ(changedRows(), (Rows{{2, 2}}));
}

} // namespace

} // namespace till
