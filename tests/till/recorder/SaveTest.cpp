#include "tests/till/support/TillFixture.h"
#include "till/recorder/ScriptFile.h"
#include "till/script/Script.h"

// A receipt that is saved as a script, and the script played.

namespace till {

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class Save : public TillTest
{
protected:
    //! The script of the receipt, without its first and last line.
    std::string saved()
    {
        done({"save " + file});
        const std::string text = contents(file).toStdString();
        const std::string mark = "# Recorded by the till.\n";
        EXPECT_THAT(text, StartsWith(mark));
        EXPECT_TRUE(RecordedText::isUnchanged(contents(file)));
        const size_t last = text.rfind("# Recorded to here;");
        return text.substr(mark.size(), last - mark.size());
    }

    //! Why the saved script does not hold on a till that is on nothing yet; empty when it does.
    std::string played(till::Setup fresh)
    {
        fresh.database = ":memory:";
        start(fresh);
        Script script;
        must(script.read(file));
        return faultText(script.play(*commands, [](const QString &) {})).toStdString();
    }
    std::string played() { return played(setup()); }

    const QString file = path("saved.till");
};

TEST_F(Save, Receipt_IsAScriptThatTellsWhatTheCommandsDid)
{
    done({"open", "add CAN3", "add BEER 1,5"});
    refused("qty 1 2");
    mistake("qty 7 1");
    EXPECT_EQ(saved(), "set PackagingControl:allowSaleEmptyTara true\n"
                       "open sale\n"
                       "expect message none\n"
                       "expect state open\n"
                       "add CAN3 1\n"
                       "expect message none\n"
                       "expect position 1 article CAN3 quantity 1 sum 60.00 live\n"
                       "expect tara 1 capacity 3 free 3\n"
                       "expect records 1 0\n"
                       "expect total 60.00\n"
                       "add BEER 1.5\n"
                       "expect message none\n"
                       "expect position 2 article BEER quantity 1.5 sum 210.00 live\n"
                       "expect tara 1 free 1.5\n"
                       "expect goods 2 in 1 1.5 unplaced 0\n"
                       "expect records 1 1\n"
                       "expect total 270.00\n"
                       "expect refused qty 1 2\n"
                       "expect message packingControlTaraAlmostFull\n"
                       "expect mistake qty 7 1\n"
                       "# What it came to:\n"
                       "expect state open\n"
                       "expect positions 2\n"
                       "expect position 1 article CAN3 quantity 1 sum 60.00 live\n"
                       "expect position 2 article BEER quantity 1.5 sum 210.00 live\n"
                       "expect tara 1 capacity 3 free 1.5\n"
                       "expect goods 2 in 1 1.5 unplaced 0\n"
                       "expect records 1 1\n"
                       "expect total 270.00\n");
    EXPECT_EQ(played(), "");
}

TEST_F(Save, StornoedTara_IsToldWithItsQuestionAndItsGoods)
{
    done({"open", "add CAN3", "add BEER 1,5", "answer yes", "storno 1"});
    EXPECT_THAT(saved(),
                EndsWith("\nanswer yes\nstorno 1\n"
                         "expect question tillStornoPosition\n"
                         "expect question \"Сторнировать позицию?\"\n"
                         "expect loyalty 1\n"
                         "expect message none\n"
                         "expect position 1 stornoed\n"
                         "expect position 2 stornoed\n"
                         "expect tara 1 none\n"
                         "expect goods 2 none\n"
                         "expect records 0 0\nexpect total 0.00\n"
                         "# What it came to:\n"
                         "expect state open\n"
                         "expect positions 0\n"
                         "expect position 1 article CAN3 quantity 1 sum 60.00 stornoed\n"
                         "expect position 2 article BEER quantity 1.5 sum 210.00 stornoed\n"
                         "expect records 0 0\nexpect total 0.00\n"));
    EXPECT_EQ(played(), "");
}

TEST_F(Save, Answers_AreInTheScript)
{
    done({"set PackagingControl:allowSaleEmptyTara no", "open", "add PET1", "add CHIPS",
          "answer no"});
    refused("subtotal");
    done({"answer yes", "pay 500"});
    const std::string text = saved();
    EXPECT_THAT(text, StartsWith("set PackagingControl:allowSaleEmptyTara false\n"));
    EXPECT_THAT(text, HasSubstr("\nanswer no\nexpect refused subtotal\n"
                                "expect question packingControlSaleEmptyTara\n"));
    EXPECT_THAT(text, HasSubstr("\nanswer yes\npay 500.00\n"));
    EXPECT_EQ(played(), "");
}

TEST_F(Save, GroupOfPieces_IsInTheScript)
{
    done({"open", "add CAN3 2", "add BEER 2", "split 2 1"});
    const std::string text = saved();
    EXPECT_THAT(text, HasSubstr("\nexpect position 2 quantity 1 sum 140.00 group 2\n"));
    EXPECT_THAT(text, HasSubstr("\nexpect position 3 article BEER quantity 1 sum 140.00 live group "
                                "2\n"));
    EXPECT_EQ(played(), "");
}

TEST_F(Save, EarlierReceipts_AreNotInIt)
{
    done({"open", "add CHIPS", "pay", "open", "add BAG"});
    const std::string text = saved();
    EXPECT_THAT(text, StartsWith("set PackagingControl:allowSaleEmptyTara true\nopen sale\n"));
    EXPECT_THAT(text, Not(HasSubstr("CHIPS")));
    EXPECT_EQ(played(), "");
}

//! The plugin lets go of a return, and still asks about the tara of the sale before it.
TEST_F(Save, Return_ComesWithWhatIsBeforeIt)
{
    done({"open", "add CHIPS", "pay", "set PackagingControl:allowSaleEmptyTara no", "open",
          "add PET1", "answer yes", "cancel", "open return", "add CHIPS", "answer yes", "subtotal",
          "expect question packingControlSaleEmptyTara"});
    const std::string text = saved();
    EXPECT_THAT(text, StartsWith("set PackagingControl:allowSaleEmptyTara false\nopen sale\n"));
    EXPECT_THAT(text, HasSubstr("\nexpect state cancelled\n"));
    EXPECT_THAT(text, HasSubstr("\nopen return\n"));
    EXPECT_EQ(played(), "");
}

TEST_F(Save, TillSwitchedOffAndOn_IsSwitchedInTheScript)
{
    done({"open", "add PET1", "add BEER 0.5", "subtotal", "restart", "qty 2 0.75",
          "set PackagingControl:allowSaleEmptyTara false", "answer yes", "storno 2"});
    refused("subtotal");
    const std::string text = saved();
    EXPECT_THAT(text, HasSubstr("\nrestart\nexpect state open\n"));
    EXPECT_THAT(text, HasSubstr("\nset PackagingControl:allowSaleEmptyTara false\n"));
    EXPECT_THAT(text, HasSubstr("\nanswer no\nexpect refused subtotal\n"));
    EXPECT_EQ(played(), "");
}

TEST_F(Save, CommandsOfAFrontWithoutLines_AreInTheScript)
{
    Register &cashRegister = till->cashRegister();
    cashRegister.carryOut(command::Open{});
    cashRegister.carryOut(command::Add{"CAN3", 2});
    cashRegister.carryOut(command::Add{"BEER", 0.125});
    cashRegister.carryOut(command::AttachOrder{"7 \"a\""});
    cashRegister.carryOut(command::ChangeCount{0, 1});
    must(till->set("PackagingControl:allowSaleEmptyTara", "false"));
    till->cashRegister().carryOut(command::Split{2, {0.1}});
    const std::string text = saved();
    EXPECT_THAT(text, HasSubstr("\nadd CAN3 2\n"));
    EXPECT_THAT(text, HasSubstr("\norder \"7 \"\"\"a\"\"\"\"\n"));
    EXPECT_THAT(text, HasSubstr("\nexpect mistake qty 0 1\n"
                                "set PackagingControl:allowSaleEmptyTara false\n"
                                "split 2 0.1\n"));
    EXPECT_EQ(played(), "");
}

//! What no line of a script can say.
struct Untypable
{
    const char *name;
    Command command;
    const char *comment;
};

void PrintTo(const Untypable &untypable, std::ostream *out)
{
    *out << untypable.comment;
}

class SaveUntypable : public Save, public testing::WithParamInterface<Untypable>
{
};

TEST_P(SaveUntypable, Command_IsSaidAndACommentInTheScript)
{
    done({"open", "add CHIPS 3", "add CHIPS"});
    till->cashRegister().carryOut(GetParam().command);
    const Outcome outcome = ends(Outcome::Failed, "save " + file);
    EXPECT_EQ(outcome.text(Translator("en")).toStdString(),
              file.toStdString() + ": a script cannot say: " + GetParam().comment);
    EXPECT_THAT(contents(file).toStdString(),
                HasSubstr(std::string("\n# ") + GetParam().comment + '\n'));
}

INSTANTIATE_TEST_SUITE_P(
    Each, SaveUntypable,
    testing::Values(
        Untypable{"Count", command::Add{"CHIPS", 1.0 / 3},
                  "cannot be typed: add CHIPS 0.3333333333333333"},
        Untypable{"Part", command::Split{1, {0.0625}}, "cannot be typed: split 1 0.0625"},
        Untypable{"Change", command::ChangeCount{1, 0.0004}, "cannot be typed: qty 1 0.0004"},
        Untypable{"Break", command::AttachOrder{"7\n8"}, "cannot be typed: order \"7 8\""},
        Untypable{"Surrogate", command::AddSoftCheck{QString(QChar(0xd800))},
                  "cannot be typed: softcheck ?"},
        Untypable{"Empty", command::Add{"", 2}, "cannot be typed: add  2"}),
    [](const auto &untypable) { return untypable.param.name; });

TEST_F(Save, NothingOpened_IsAMistake)
{
    const std::string nothing = "no receipt was opened since the till was started: nothing to save";
    EXPECT_EQ(mistake("save " + file).toStdString(), nothing);
    done({"open"});
    start();
    EXPECT_EQ(mistake("save " + file).toStdString(), nothing);
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(Save, WhatWasWritten_IsTold)
{
    start(setup(), "en");
    done({"open", "add CHIPS"});
    takePrinted();
    done({"save " + file});
    EXPECT_EQ(takePrinted().toStdString(),
              file.toStdString() + ": 2 command(s), 10 expectation(s)");
}

TEST_F(Save, ScriptOfBefore_IsReplaced)
{
    done({"open"});
    saved();
    done({"add CHIPS"});
    EXPECT_THAT(saved(), HasSubstr("\nadd CHIPS 1\n"));
}

TEST_F(Save, OtherFile_IsLeftAsItIs)
{
    overwrite(file, "open\n");
    done({"open"});
    EXPECT_EQ(failed("save " + file),
              file + ": is there already and is no recorded script; name another file");
    EXPECT_EQ(contents(file), "open\n");
    EXPECT_EQ(failed("save " + directory.path()),
              directory.path() + ": is no file of its own; name another file");
    EXPECT_EQ(failed("save -"), "-: a script is saved to a file; ./- is one of that name");
}

TEST_F(Save, ScriptThatWasChanged_IsLeftAsItIs)
{
    done({"open", "add CHIPS"});
    saved();
    saved(); // which takes the place of the one before
    for (const QByteArray &changed :
         {contents(file).replace("quantity 1", "quantity 2"), contents(file) + "pay\n",
          contents(file).chopped(1), QByteArray("# Recorded by the till.\nopen\n")}) {
        overwrite(file, changed);
        EXPECT_EQ(failed("save " + file),
                  file
                      + ": was changed since it was recorded, or not recorded to its end; "
                        "name another file, or remove this one");
        EXPECT_EQ(contents(file), changed);
    }
}

TEST_F(Save, FileThatCannotBeWritten_IsAFailure)
{
    done({"open"});
    EXPECT_EQ(failed("save " + path("no/such/folder")),
              path("no/such/folder") + ": No such file or directory");
}

TEST_F(Save, PlayedWithoutThePlugin_DoesNotHold)
{
    done({"open", "add CAN3"});
    saved();
    till::Setup bare = setup();
    bare.plugin.clear();
    EXPECT_EQ(played(bare), file.toStdString()
                                + ":9: expect tara 1 capacity 3 free 3: "
                                  "tara 1: ожидалось capacity 3 free 3, есть none");
}

} // namespace

} // namespace till
