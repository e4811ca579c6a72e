#include "window/archive/KeptReceiptsModel.h"

#include "tests/support/Printers.h"
#include "tests/till/support/ManyReceipts.h"
#include "tests/till/support/TillFixture.h"
#include "tests/window/support/ModelTexts.h"

#include <QtTest/QAbstractItemModelTester>

namespace till {

namespace {

class KeptReceipts : public TillTest
{
protected:
    KeptReceipts() { done({"open", "add CHIPS 2", "pay", "open return", "add CHIPS"}); }

    //! Reads the list from the database \a name.
    void read(const QString &name, const Selection &selection = {})
    {
        const auto archive = must(Archive::open(path(name)));
        must(model.read(*archive, selection));
    }
    QStringList row(int row) const
    {
        QStringList texts;
        for (const int column :
             {KeptReceiptsModel::Number, KeptReceiptsModel::Total, KeptReceiptsModel::What})
            texts.append(model.index(row, column).data().toString());
        return texts;
    }

    KeptReceiptsModel model{Translator("en")};
    QAbstractItemModelTester tester{&model,
                                    QAbstractItemModelTester::FailureReportingMode::Warning};
};

TEST_F(KeptReceipts, Newest_StandsAbove)
{
    read("till.sqlite");
    ASSERT_EQ(model.rowCount(), 2);
    EXPECT_EQ(row(0), (QStringList{"2", "129.90", "Return · open · 1 pos."}));
    EXPECT_EQ(row(1), (QStringList{"1", "259.80", "Receipt · closed · 1 pos."}));
}

TEST_F(KeptReceipts, Selection_LeavesOthersOut)
{
    Selection closed;
    closed.states = {ReceiptState::Closed};
    read("till.sqlite", closed);
    ASSERT_EQ(model.rowCount(), 1);
    EXPECT_EQ(model.numberAt(0), 1);
    EXPECT_EQ(model.rowOf(1), 0);
    EXPECT_EQ(model.rowOf(2), -1);
}

TEST_F(KeptReceipts, OtherLanguage_ChangesTheRows)
{
    read("till.sqlite");
    model.translate(Translator("ru"));
    EXPECT_EQ(row(1), (QStringList{"1", "259.80", "Чек · закрыт · 1 поз."}));
}

TEST_F(KeptReceipts, ManyReceipts_AreListedFromTheNewestOn)
{
    constexpr qint64 count = 2 * KeptReceiptsModel::most + 7;
    must(makeManyReceipts(path("many.sqlite"), count));
    read("many.sqlite");
    EXPECT_EQ(model.count(), count);
    ASSERT_EQ(model.rowCount(), KeptReceiptsModel::most);
    EXPECT_EQ(model.numberAt(0), count);
    EXPECT_EQ(model.numberAt(model.rowCount() - 1), count - KeptReceiptsModel::most + 1);
}

} // namespace

} // namespace till
