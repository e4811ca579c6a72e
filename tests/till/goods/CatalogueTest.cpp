#include "tests/support/Printers.h"
#include "tests/till/goods/CatalogueFile.h"

namespace {

using till::ArticleData;
using till::Catalogue;

const QByteArray Head = "code,name,price,tara mode,tara capacity,pack,unit\n";

class CatalogueContents : public CatalogueFile
{
protected:
    ArticleData article(const QByteArray &row) { return articlesOf(Head + row).first(); }
};

TEST_F(CatalogueContents, FindByCode_GivesThatArticle)
{
    const auto catalogue = must(load(Head
                                     + "A,Chips,1,0,0,1,pc\n"
                                       "B,Fish,2,0,0,1,pc\n"));

    ASSERT_TRUE(catalogue.find("B"));
    EXPECT_EQ(catalogue.find("B")->data.name, "Fish");
    EXPECT_EQ(catalogue.find("B"), catalogue.articles().at(1));
}

TEST_F(CatalogueContents, FindOfUnknownCode_GivesNull)
{
    const auto catalogue = must(load(Head + "A,Chips,1,0,0,1,pc\n"));

    EXPECT_FALSE(catalogue.find("B"));
    EXPECT_FALSE(catalogue.find("a"));
    EXPECT_FALSE(catalogue.find(""));
}

TEST_F(CatalogueContents, Articles_StandInTheOrderOfTheFile)
{
    const auto articles = articlesOf(Head
                                     + "Z,Chips,1,0,0,1,pc\n"
                                       "A,Fish,2,0,0,1,pc\n"
                                       "M,Bag,3,0,0,1,pc\n");

    ASSERT_EQ(articles.size(), 3);
    EXPECT_EQ(articles[0].code, "Z");
    EXPECT_EQ(articles[1].code, "A");
    EXPECT_EQ(articles[2].code, "M");
}

TEST_F(CatalogueContents, Containing_TakesCodesAndNamesInAnyCase)
{
    const auto catalogue = must(load(Head
                                     + "A1,Chips,1,0,0,1,pc\n"
                                       "B,Fish a1,2,0,0,1,pc\n"
                                       "C,Bag,2,0,0,1,pc\n"));

    EXPECT_EQ(catalogue.containing("a1").size(), 2);
    EXPECT_EQ(catalogue.containing("CHI").size(), 1);
    EXPECT_EQ(catalogue.containing("a2").size(), 0);
}

TEST_F(CatalogueContents, Containing_TakesYoForYe)
{
    const auto catalogue = must(load(Head
                                     + "A,Мёд,1,0,0,1,pc\n"
                                       "B,МЕДОК,2,0,0,1,pc\n"));

    for (const char *const text : {"мед", "мёд", "МЁД", "МЕД"})
        EXPECT_EQ(catalogue.containing(text).size(), 2) << text;
    EXPECT_EQ(catalogue.containing("медок").size(), 1);
}

TEST_F(CatalogueContents, Article_TellsTheHostItsTaraModeAndCapacity)
{
    const auto catalogue = must(load(Head + "A,Bottle,1,1,1.5,1,pc\n"));

    EXPECT_EQ(catalogue.find("A")->getTaraMode(), Tmc::Tara);
    EXPECT_EQ(catalogue.find("A")->getTaraCapacity(), QVariant(1.5));
}

TEST_F(CatalogueContents, EmptyTaraMode_IsOrdinaryGoods)
{
    EXPECT_EQ(article("A,Chips,1,,,1,pc"), (ArticleData{"A", "Chips", 100, 0, 0.0, 1.0, "pc"}));
}

TEST_F(CatalogueContents, Pack_MayBeOtherThanOne)
{
    EXPECT_EQ(article("A,Crate,1,0,,20,pc").pack, 20.0);
    EXPECT_EQ(article("A,Glass,1,2,,0.25,l").pack, 0.25);
}

TEST_F(CatalogueContents, PriceOfZero_IsTaken)
{
    EXPECT_EQ(article("A,Gift,0,0,,1,pc"), (ArticleData{"A", "Gift", 0, 0, 0.0, 1.0, "pc"}));
}

TEST_F(CatalogueContents, GreatestPrice_IsTaken)
{
    EXPECT_EQ(article("A,Yacht,999999999999.99,0,0,1,pc").price, till::greatestAmount);
}

TEST_F(CatalogueContents, EmptyUnit_IsTaken)
{
    EXPECT_EQ(article("A,Chips,1,0,,1,"), (ArticleData{"A", "Chips", 100, 0, 0.0, 1.0, ""}));
}

TEST_F(CatalogueContents, CodesThatDifferInLetterCase_AreTwoArticles)
{
    EXPECT_EQ(errorOf(Head + "A,Chips,1,0,,1,pc\na,Fish,1,0,,1,pc\n"), "");
}

struct Refused
{
    const char *what;
    QByteArray text;
    QString error;
};

void PrintTo(const Refused &refused, std::ostream *out)
{
    *out << refused.what;
}

//! What is said of a \a text in the column \a name.
QString notAnAmount(const QString &place, const QString &name, const QString &text)
{
    return QString("%1 \"%2\": \"%3\" is not an amount from 0 to 999999999999.99, such as 12.50")
        .arg(place, name, text);
}

QString notANumber(const QString &place, const QString &name, const QString &text)
{
    return QString("%1 \"%2\": \"%3\" is not a number from 0 to 999999999.999 with at most three "
                   "decimals, such as 1.5")
        .arg(place, name, text);
}

class CatalogueRefusal : public CatalogueFile, public testing::WithParamInterface<Refused>
{
};

TEST_P(CatalogueRefusal, SaysWhereAndWhy)
{
    EXPECT_EQ(errorOf(GetParam().text), GetParam().error);
}

INSTANTIATE_TEST_SUITE_P(
    Fields, CatalogueRefusal,
    testing::Values(
        Refused{"empty code", Head + " ,Chips,1,0,0,1,pc",
                R"(FILE:2: column 1 "code": an article needs a code)"},
        Refused{"space in code", Head + "A B,Chips,1,0,0,1,pc",
                R"(FILE:2: column 1 "code": "A B" has a space in it)"},
        Refused{"unbreakable space in code", Head + "A\u00A0B,Chips,1,0,0,1,pc",
                "FILE:2: column 1 \"code\": \"A\u00A0B\" has a space in it"},
        Refused{"tab in code", Head + "\"A\tB\",Chips,1,0,0,1,pc",
                R"(FILE:2: column 1 "code": has the control character U+0009 in it)"},
        Refused{"line break in name", Head + "A,\"Big\nchips\",1,0,0,1,pc",
                R"(FILE:2: column 2 "name": has the control character U+000a in it)"},
        Refused{"line break of Windows in unit", Head + "A,Chips,1,0,0,1,\"p\r\nc\"",
                R"(FILE:2: column 7 "unit": has the control character U+000d in it)"},
        Refused{"same code twice", Head + "A,Chips,1,0,0,1,pc\nB,Bag,1,0,0,1,pc\n\nA,Fish,1,0,0,1,",
                R"(FILE:5: column 1 "code": "A" is the code of line 2 already)"},
        Refused{"empty name", Head + "A,\" \n\",1,0,0,1,pc",
                R"(FILE:2: column 2 "name": an article needs a name)"},
        Refused{"empty price", Head + "A,Chips,,0,0,1,pc",
                R"(FILE:2: column 3 "price": an article needs a price)"},
        Refused{"price in words", Head + "A,Chips,much,0,0,1,pc",
                notAnAmount("FILE:2: column 3", "price", "much")},
        Refused{"negative price", Head + "A,Chips,-1,0,0,1,pc",
                notAnAmount("FILE:2: column 3", "price", "-1")},
        Refused{"price with parts of a kopeck", Head + "A,Chips,1.005,0,0,1,pc",
                notAnAmount("FILE:2: column 3", "price", "1.005")},
        Refused{"price above the limit", Head + "A,Chips,1000000000000,0,0,1,pc",
                notAnAmount("FILE:2: column 3", "price", "1000000000000")},
        Refused{"pack above the limit", Head + "A,Chips,1,0,0,1000000000,pc",
                notANumber("FILE:2: column 6", "pack", "1000000000")},
        Refused{"unknown tara mode", Head + "A,Chips,1,3,0,1,pc",
                "FILE:2: column 4 \"tara mode\": \"3\" is none of 0 (ordinary goods), 1 (tara) "
                "and 2 (goods sold into tara)"},
        Refused{"capacity in words", Head + "A,Bottle,1,1,big,1,pc",
                notANumber("FILE:2: column 5", "tara capacity", "big")},
        Refused{"negative capacity", Head + "A,Bottle,1,1,-1,1,pc",
                notANumber("FILE:2: column 5", "tara capacity", "-1")},
        Refused{"tara with capacity 0", Head + "A,Bottle,1,1,0,1,pc",
                R"(FILE:2: column 5 "tara capacity": a tara needs a capacity above 0)"},
        Refused{"tara without capacity", Head + "A,Bottle,1,1,,1,pc",
                R"(FILE:2: column 5 "tara capacity": a tara needs a capacity above 0)"},
        Refused{"ordinary goods with capacity", Head + "A,Bottle,1,,0.5,1,pc",
                "FILE:2: column 5 \"tara capacity\": \"0.5\" is for a tara, which has the tara "
                "mode 1"},
        Refused{"goods sold into tara with capacity", Head + "A,Beer,1,2,0.5,1,l",
                "FILE:2: column 5 \"tara capacity\": \"0.5\" is for a tara, which has the tara "
                "mode 1"},
        Refused{"pack in words", Head + "A,Chips,1,0,0,dozen,pc",
                notANumber("FILE:2: column 6", "pack", "dozen")},
        Refused{"pack of 0", Head + "A,Chips,1,0,0,0,pc",
                R"(FILE:2: column 6 "pack": "0" is not above 0)"},
        Refused{"negative pack", Head + "A,Chips,1,0,0,-2,pc",
                notANumber("FILE:2: column 6", "pack", "-2")}));

INSTANTIATE_TEST_SUITE_P(
    Rows, CatalogueRefusal,
    testing::Values(
        Refused{"too few fields", Head + "A,Chips,1,0,0",
                R"(FILE:2: column 6 "pack": too few fields: 5 where the header has 7)"},
        Refused{"too many fields", Head + "A,Chips,1,50,0,0,1,pc",
                "FILE:2: column 8: too many fields: 8 where the header has 7"},
        Refused{"bad UTF-8", Head + "A,\xD7\xE8\xEF\xF1\xFB,1,0,0,1,pc",
                R"(FILE:2: column 2 "name": the text is not UTF-8)"},
        Refused{"bad UTF-8 in a column that is not ours",
                "note," + Head + "\xFF,A,Chips,1,0,0,1,pc",
                R"(FILE:2: column 1 "note": the text is not UTF-8)"},
        Refused{"cut UTF-8 at the end of the file", Head + "A,Chips,1,0,0,1,\xD1",
                R"(FILE:2: column 7 "unit": the text is not UTF-8)"},
        Refused{"quote that is not closed", Head + "A,Chips,1,0,0,1,pc\nB,\"Fish,1,0,0,1,pc\n\n",
                R"(FILE:3: column 2 "name": the closing quote is missing)"},
        Refused{"quote in a field without quotes", Head + "A,A 5\" brush,1,0,0,1,pc",
                "FILE:2: column 2 \"name\": a quote stands alone: put the field in quotes and "
                "double those within"},
        Refused{"text behind the closing quote", Head + "A,\"Chips\" 5,1,0,0,1,pc",
                "FILE:2: column 2 \"name\": a quote stands alone: put the field in quotes and "
                "double those within"},
        Refused{"row behind quoted line breaks",
                "note," + Head
                    + "\"Big\n\none\r\ncrisp\",A,Chips,1,0,0,1,pc\r\n\r\n,B,Fish,no,0,0,1,pc",
                notAnAmount("FILE:7: column 4", "price", "no")},
        Refused{"row with quoted line breaks before the bad field",
                "note," + Head + "\n\"Big\n\none\",\"A\n\",Chips,no,0,0,1,pc",
                notAnAmount("FILE:3: column 4", "price", "no")},
        Refused{
            "row behind line ends of CR",
            QByteArray("note," + Head + "\"Big\none\",A,Chips,1,0,0,1,pc\n\n,B,Fish,no,0,0,1,pc")
                .replace('\n', '\r'),
            notAnAmount("FILE:5: column 4", "price", "no")},
        Refused{"two bad rows, the second with a stray quote",
                Head + "A,Chips,no,0,0,1,pc\nB,Fi\"sh,1,0,0,1,pc",
                notAnAmount("FILE:2: column 3", "price", "no")},
        Refused{"Russian column in another place",
                "прим.;единица;код;название;цена;режим тары;ёмкость тары;упаковка\n;;A;Ч;x;;;",
                notAnAmount("FILE:2: column 5", "цена", "x")}));

INSTANTIATE_TEST_SUITE_P(
    Headers, CatalogueRefusal,
    testing::Values(
        Refused{"empty file", "", "FILE: the file is empty"},
        Refused{"only a byte order mark", "\xEF\xBB\xBF", "FILE: the file is empty"},
        Refused{"only blank rows", "\n \r\n,,,\n", "FILE: the file is empty"},
        Refused{"no articles", Head, "FILE: there are no articles below the header"},
        Refused{"missing column", "code,name,tara mode,tara capacity,pack,unit\n",
                R"(FILE:1: missing in the header: "price")"},
        Refused{"no header", "\nA,Chips,1,0,0,1,pc\n",
                "FILE:2: missing in the header: \"code\", \"name\", \"price\", \"tara mode\", "
                "\"tara capacity\", \"pack\", \"unit\""},
        Refused{"column twice", "code,name,price,tara mode,tara capacity,pack,unit,название\n",
                R"(FILE:1: column 8 "название": says the same as column 2 "name")"},
        Refused{"bad UTF-8 in the header", "code;\xFF;name;price\n",
                "FILE:1: column 2: the text is not UTF-8"},
        Refused{"stray quote in the header", "code;na\"me;price\n",
                "FILE:1: column 2: a quote stands alone: put the field in quotes and double those "
                "within"},
        Refused{"quote in the header that is not closed", "code;name;\"price\n",
                "FILE:1: column 3: the closing quote is missing"}));

TEST(CataloguePath, OfNoFile_IsAnError)
{
    EXPECT_EQ(faultText(Catalogue::load("/nowhere/goods.csv")), "/nowhere/goods.csv: no such file");
}

TEST(CataloguePath, OfADirectory_IsAnError)
{
    EXPECT_EQ(faultText(Catalogue::load("/")), "/: a directory, not a file");
}

TEST(CataloguePath, OfAFileThatCannotBeRead_IsAnError)
{
    // The first page of a process's memory is never mapped: this file opens and fails to read.
    const auto error = faultText(Catalogue::load("/proc/self/mem"));

    EXPECT_TRUE(error.startsWith("/proc/self/mem: cannot be read: ")) << error.toStdString();
}

TEST(CataloguePath, OfAFileThatCannotBeOpened_IsAnError)
{
    // Writing is all that anyone may do to this one, whoever asks.
    const auto error = faultText(Catalogue::load("/proc/self/clear_refs"));

    EXPECT_TRUE(error.startsWith("/proc/self/clear_refs: cannot be ")) << error.toStdString();
}

} // namespace
