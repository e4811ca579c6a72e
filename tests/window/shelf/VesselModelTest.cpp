#include "window/shelf/VesselModel.h"
#include "tests/till/support/FolderTest.h"

#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>

namespace till {

namespace {

//! A shelf of taras whose contents are said.
class VesselModelTest : public FolderTest
{
protected:
    VesselModelTest()
        : model(Translator(QStringLiteral("en")))
        , tester(&model, QAbstractItemModelTester::FailureReportingMode::Warning)
    {
    }

    static LineRecord tara(int posnum, double capacity)
    {
        LineRecord line;
        line.posnum = posnum;
        line.article.name = QStringLiteral("Jar");
        line.article.taraMode = Tmc::Tara;
        line.article.taraCapacity = capacity;
        line.count = line.base = 1;
        return line;
    }
    static LineRecord goods(int posnum, double base)
    {
        LineRecord line;
        line.posnum = posnum;
        line.article.taraMode = Tmc::PackagingGoods;
        line.count = line.base = base;
        return line;
    }
    //! Two jars, of 2 and 8, and two goods: so much of each is in the first jar.
    static std::shared_ptr<const ShownReceipt> shelf(double honey, double oil)
    {
        ReceiptRecord record;
        record.lines = {tara(1, 2), tara(2, 8), goods(3, honey), goods(4, oil)};
        TaraState state{{{1, "a", 2, 2 - honey - oil}, {2, "b", 8, 8}},
                        {{3, {{"a", honey}}}, {4, {{"a", oil}}}}};
        return std::make_shared<const ShownReceipt>(record, state, TaraControl::Active);
    }
    QList<double> amounts(int row) const
    {
        QList<double> amounts;
        for (const Filling::Layer &layer : model.fillingAt(row).layers)
            amounts.append(layer.amount);
        return amounts;
    }

    VesselModel model;
    QAbstractItemModelTester tester;
};

TEST_F(VesselModelTest, EachTara_IsAVessel)
{
    model.show(shelf(1, 0.5), false);

    EXPECT_EQ(model.rowCount(), 2);
    EXPECT_EQ(model.greatestCapacity(), 8.0);
    EXPECT_EQ(amounts(0), (QList<double>{1, 0.5}));
    EXPECT_EQ(amounts(1), QList<double>());
}

TEST_F(VesselModelTest, Layers_HaveTheLookOfTheirGoods)
{
    model.show(shelf(1, 0.5), false);

    EXPECT_EQ(model.fillingAt(0).layers[0].look, GoodsLook::of(0));
    EXPECT_EQ(model.fillingAt(0).layers[1].look, GoodsLook::of(1));
}

TEST_F(VesselModelTest, FreeCapacity_IsToldInFigures)
{
    model.show(shelf(1, 0.5), false);

    EXPECT_EQ(model.amountsAt(0), "1.5 / 2");
    EXPECT_EQ(model.fillTextAt(0).text, "free 0.5");
    EXPECT_EQ(model.index(0).data(Qt::AccessibleTextRole),
              "1 Jar\n1.5 / 2, free 0.5: pos. 3 — 1, pos. 4 — 0.5");
}

TEST_F(VesselModelTest, OverfullVessel_SaysSoAsAWarning)
{
    model.show(shelf(2, 1), false);

    EXPECT_EQ(model.fillTextAt(0).text, "over-full by 1");
    EXPECT_EQ(model.fillTextAt(0).paint, Paint::Red);
    EXPECT_GT(model.fillingAt(0).amount(), model.fillingAt(0).capacity);
}

TEST_F(VesselModelTest, Change_IsOnItsWay_UntilItArrived)
{
    model.show(shelf(1, 0), false);

    model.show(shelf(2, 0), true);
    EXPECT_TRUE(model.isMoving());
    EXPECT_EQ(amounts(0), QList<double>{1});
    model.setProgress(0.5);
    EXPECT_EQ(amounts(0), QList<double>{1.5});
    model.setProgress(1);
    EXPECT_EQ(amounts(0), QList<double>{2});
    EXPECT_FALSE(model.isMoving());
}

TEST_F(VesselModelTest, Change_MovesItsVesselOnly)
{
    model.show(shelf(1, 0), false);
    model.show(shelf(2, 0), true);
    const QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);

    model.setProgress(0.5);

    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex().row(), 0);
    EXPECT_EQ(changed[0][1].toModelIndex().row(), 0);
}

TEST_F(VesselModelTest, MotionSwitchedOff_ArrivesAtOnce)
{
    model.show(shelf(1, 0), false);

    model.show(shelf(2, 0), false);

    EXPECT_FALSE(model.isMoving());
    EXPECT_EQ(amounts(0), QList<double>{2});
}

} // namespace

} // namespace till
