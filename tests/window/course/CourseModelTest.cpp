#include "window/course/CourseModel.h"

#include "tests/support/Printers.h"
#include "tests/till/support/TestFront.h"
#include "tests/till/support/TillFixture.h"
#include "tests/window/support/ModelTexts.h"
#include "till/course/Trace.h"

#include <QtTest/QAbstractItemModelTester>

namespace till {

namespace {

//! A course that is told in English, watched for what models must not do.
class Course : public TillTest
{
protected:
    Course() { start(setup(), QStringLiteral("en")); }

    void limit(const CourseModel::Limits &limits)
    {
        tester.reset();
        model.emplace(notes, Translator("en"), limits);
        tester.emplace(&*model, QAbstractItemModelTester::FailureReportingMode::Warning);
    }
    Outcome carryOut(const Command &command) { return till->cashRegister().carryOut(command); }

    QString cameOf(const QModelIndex &row) const
    {
        return row.siblingAtColumn(CourseModel::End).data().toString();
    }
    QStringList inside(const QModelIndex &row) const { return textsOf(*model, row); }
    QModelIndex lastCommand() const { return model->index(model->rowCount() - 1, 0); }
    //! All the rows of the top.
    QModelIndexList commandRows() const
    {
        QModelIndexList rows;
        for (int row = 0; row < model->rowCount(); ++row)
            rows.append(model->index(row, 0));
        return rows;
    }

    std::optional<CourseModel> model{std::in_place, notes, Translator("en"), CourseModel::Limits()};
    std::optional<QAbstractItemModelTester> tester{
        std::in_place, &*model, QAbstractItemModelTester::FailureReportingMode::Warning};
};

TEST_F(Course, Commands_AreTheRowsOfTheTop)
{
    limit({});
    done({"open", "add CAN3", "add BEER 2"});
    EXPECT_EQ(textsOf(*model), (QStringList{"open sale", "add CAN3 1", "add BEER 2"}));
    EXPECT_EQ(textsOf(*model, {}, CourseModel::End), (QStringList{"done", "done", "done"}));
}

TEST_F(Course, Event_SaysWhichTaraItFilled)
{
    done({"open", "add CAN3", "add PET1", "add BEER 3.5"});
    const QModelIndex event = rowWith(*model, "event 19");
    EXPECT_EQ(event.data().toString(), "event 19: position 3 was added");
    EXPECT_EQ(cameOf(event), "tara 1: free 3 → 0 of 3; tara 2: free 1 → 0.5 of 1");
    EXPECT_THAT(inside(event), testing::Contains("goods 3: in tara 1 (3), 2 (0.5)"));
}

TEST_F(Course, StornoOfTara_SaysWhatIsNoLongerNoted)
{
    done({"open", "add CAN3", "add BEER 2", "answer yes", "storno 1"});
    const QModelIndex storno = rowWith(*model, "storno 1");
    ASSERT_TRUE(storno.isValid());
    EXPECT_TRUE(rowWith(*model, "tara 1: no longer noted", storno.parent()).isValid());
    EXPECT_TRUE(rowWith(*model, "goods 2: no longer noted", storno.parent()).isValid());
}

TEST_F(Course, ActionOfThePlugin_StandsInsideTheEventThatLedToIt)
{
    done({"open", "add CAN3", "add BEER 3", "qty 1 2"});
    const QModelIndex asked = rowWith(*model, "asked for by the plugin: qty 2");
    ASSERT_TRUE(asked.isValid());
    EXPECT_EQ(asked.parent().data().toString(),
              "event 26: the cashier changed the quantity of position 1");
    EXPECT_TRUE(rowWith(*model, "event 252: the program changed the quantity of position 2", asked)
                    .isValid());
    EXPECT_EQ(cameOf(asked), "carried out");
    EXPECT_TRUE(rowWith(*model, "tara 1: capacity 3 → 6, free").isValid());
}

TEST_F(Course, Trigger_HoldsWhatItDid)
{
    done({"open", "add CAN3", "add BEER"});
    EXPECT_EQ(refused("qty 1 2"), "packingControlTaraAlmostFull");
    const QModelIndex message = rowWith(*model, "! The tara is partly filled.");
    ASSERT_TRUE(message.isValid());
    const QModelIndex event = message.parent();
    EXPECT_EQ(event.data().toString(), "event 29: an error");
    EXPECT_TRUE(event.parent().data().toString().startsWith("trigger before qty, priority "));
    EXPECT_EQ(cameOf(event.parent()), "refused");
    EXPECT_EQ(event.parent().parent().data().toString(), "qty 1 2");
}

TEST_F(Course, Refusal_SaysWhyInTheLanguageOfTheReader)
{
    done({"open"});
    EXPECT_EQ(ends(Outcome::Mistake, "qty 7 1").reason.key(), "tillNoPosition");
    EXPECT_EQ(cameOf(lastCommand()), "mistake: the receipt has no position 7");
    model->translate(Translator("ru"));
    EXPECT_EQ(cameOf(lastCommand()), "ошибка: В чеке нет позиции 7");
}

TEST_F(Course, QuestionUnderWay_StandsInsideItsCommandAlready)
{
    TestFront front;
    const InstalledFront installed(till->front(), front);
    QString seen;
    front.asked = [&](const Question &) {
        const QModelIndex question = rowWith(*model, "? Storno the position?");
        seen = cameOf(question) + '|' + question.parent().data().toString();
        return true;
    };
    done({"open", "add CHIPS"});
    EXPECT_TRUE(carryOut(command::Storno{1}));
    EXPECT_EQ(seen, "|storno 1");
    EXPECT_EQ(cameOf(rowWith(*model, "? Storno the position?")), "Yes");
}

TEST_F(Course, TriggerUnderWay_IsThereBeforeItIsOver)
{
    done({"set PackagingControl:allowSaleEmptyTara false", "open", "add PET1", "add BEER",
          "add PET15"});
    TestFront front;
    const InstalledFront installed(till->front(), front);
    QString seen;
    front.asked = [&](const Question &) {
        seen = rowWith(*model, "? There is empty tara").parent().data().toString();
        return false;
    };
    EXPECT_FALSE(carryOut(command::Subtotal{}));
    EXPECT_EQ(seen, "trigger under way");
    const QModelIndex question = rowWith(*model, "? There is empty tara");
    EXPECT_TRUE(question.parent().data().toString().startsWith("trigger before subtotal"));
    EXPECT_EQ(cameOf(question), "No");
    EXPECT_EQ(cameOf(lastCommand()).section(':', 0, 0), "declined");
}

TEST_F(Course, OtherLanguage_ChangesWhatStandsThereAlready)
{
    done({"open", "add CAN3", "add BEER 3"});
    model->translate(Translator("ru"));
    EXPECT_EQ(cameOf(lastCommand()), "сделано");
    EXPECT_EQ(cameOf(rowWith(*model, "событие 19")), "тара 1: свободно 3 → 0 из 3");
    EXPECT_EQ(model->headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), "Что произошло");
}

TEST_F(Course, Json_IsTheLinesOfATrace)
{
    const auto trace = must(Trace::start(notes, path("trace.jsonl")));
    limit({});
    done({"open", "add CAN3", "add BEER 2", "answer yes", "storno 1", "restart"});
    EXPECT_EQ(model->json(commandRows()), contents(path("trace.jsonl")));
}

TEST_F(Course, JsonOfOneRow_IsWhatHappenedInsideOfIt)
{
    limit({});
    done({"open", "add CAN3", "add BEER 2"});
    const QByteArray event = model->json({rowWith(*model, "event 19")});
    EXPECT_TRUE(event.startsWith("{\"code\":19")) << event.toStdString();
    EXPECT_EQ(event.count("\"kind\":\"data\""), 2);
    const QByteArray command = model->json({model->index(2, 0), rowWith(*model, "event 19")});
    EXPECT_EQ(command.count("\"code\":19"), 1);
    EXPECT_TRUE(command.contains(event));
}

TEST_F(Course, LongCourse_ForgetsTheOldestCommands)
{
    limit({3, 10000});
    done({"open", "add CAN3", "add BEER 2", "add CHIPS", "add CHIPS 2"});
    EXPECT_EQ(textsOf(*model), (QStringList{"add BEER 2", "add CHIPS 1", "add CHIPS 2"}));
    EXPECT_EQ(model->forgotten(), 2);
    EXPECT_TRUE(rowWith(*model, "event 19: position 4").isValid());
}

TEST_F(Course, CommandsOfManyNotes_AreForgottenEarlier)
{
    limit({100, 20});
    done({"open", "add CAN3", "add BEER 2", "add CHIPS"});
    EXPECT_EQ(lastCommand().data().toString(), "add CHIPS 1");
    EXPECT_LT(model->rowCount(), 4);
    EXPECT_EQ(model->rowCount() + model->forgotten(), 4);
}

TEST_F(Course, OneCommandAboveTheLimit_IsKept)
{
    limit({1, 1});
    done({"open"});
    EXPECT_EQ(textsOf(*model), QStringList{"open sale"});
    EXPECT_GT(model->rowCount(model->index(0, 0)), 0);
}

TEST_F(Course, TakeUp_TellsWhatOfTaraIsKnownFromTheStart)
{
    done({"open", "add CAN3", "restart", "add BEER 2"});
    EXPECT_EQ(cameOf(rowWith(*model, "event 19")), "tara 1: free 3 → 1 of 3");
}

TEST_F(Course, TakeUpOfGoods_SaysHowMuchIsInTaraThatIsNotToldOfYet)
{
    done({"open", "add CAN3", "add BEER 2"});
    must(till->stop());
    limit({});
    must(till->start());
    EXPECT_TRUE(rowWith(*model, "goods 2: in tara (2)").isValid());
    EXPECT_TRUE(rowWith(*model, "tara 1: free 1 of 3").isValid());
}

} // namespace

} // namespace till
