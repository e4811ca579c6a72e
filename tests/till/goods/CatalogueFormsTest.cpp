#include "tests/support/Printers.h"
#include "tests/till/goods/CatalogueFile.h"

// The forms in which a shop's spreadsheet may come.

namespace {

using till::ArticleData;

const ArticleData Beer{"BEER", "Пиво", 14050, Tmc::PackagingGoods, 0.0, 1.0, "л"};
const ArticleData Bottle{"PET", "Бутылка", 900, Tmc::Tara, 1.5, 1.0, "шт"};

struct Form
{
    const char *what;
    QByteArray text;
};

void PrintTo(const Form &form, std::ostream *out)
{
    *out << form.what;
}

class CatalogueForm : public CatalogueFile, public testing::WithParamInterface<Form>
{
};

TEST_P(CatalogueForm, OfTwoArticles_IsRead)
{
    EXPECT_EQ(articlesOf(GetParam().text), (QList{Beer, Bottle}));
}

INSTANTIATE_TEST_SUITE_P(
    Separators, CatalogueForm,
    testing::Values(Form{"comma", "code,name,price,tara_mode,tara_capacity,pack,unit\n"
                                  "BEER,Пиво,140.50,2,,1,л\n"
                                  "PET,Бутылка,9,1,1.5,1,шт\n"},
                    Form{"semicolon", "code;name;price;tara_mode;tara_capacity;pack;unit\n"
                                      "BEER;Пиво;140.50;2;;1;л\n"
                                      "PET;Бутылка;9;1;1.5;1;шт\n"},
                    Form{"tab", "code\tname\tprice\ttara_mode\ttara_capacity\tpack\tunit\n"
                                "BEER\tПиво\t140.50\t2\t\t1\tл\n"
                                "PET\tБутылка\t9\t1\t1.5\t1\tшт\n"},
                    Form{"semicolon, with commas in the header",
                         "code;\"a,b,c,d,e,f,g\";name;price;tara_mode;tara_capacity;pack;unit\n"
                         "BEER;;Пиво;140.50;2;;1;л\n"
                         "PET;;Бутылка;9;1;1.5;1;шт\n"},
                    Form{"comma, with quoted header names",
                         "\"code\",\"name\",\"price\",\"tara_mode\",\"tara_capacity\",\"pack\","
                         "\"unit\"\n"
                         "BEER,Пиво,140.50,2,,1,л\n"
                         "PET,Бутылка,9,1,1.5,1,шт\n"}));

INSTANTIATE_TEST_SUITE_P(
    Bytes, CatalogueForm,
    testing::Values(Form{"byte order mark", "\xEF\xBB\xBF"
                                            "code,name,price,tara_mode,tara_capacity,pack,unit\n"
                                            "BEER,Пиво,140.50,2,,1,л\n"
                                            "PET,Бутылка,9,1,1.5,1,шт\n"},
                    Form{"byte order mark before a quote",
                         "\xEF\xBB\xBF"
                         "\"code\",name,price,tara_mode,tara_capacity,pack,unit\n"
                         "BEER,Пиво,140.50,2,,1,л\n"
                         "PET,Бутылка,9,1,1.5,1,шт\n"},
                    Form{"CR LF", "code,name,price,tara_mode,tara_capacity,pack,unit\r\n"
                                  "BEER,Пиво,140.50,2,,1,л\r\n"
                                  "PET,Бутылка,9,1,1.5,1,шт\r\n"},
                    Form{"CR", "code,name,price,tara_mode,tara_capacity,pack,unit\r"
                               "BEER,Пиво,140.50,2,,1,л\r"
                               "PET,Бутылка,9,1,1.5,1,шт\r"},
                    Form{"no end of the last line",
                         "code,name,price,tara_mode,tara_capacity,pack,unit\n"
                         "BEER,Пиво,140.50,2,,1,л\n"
                         "PET,Бутылка,9,1,1.5,1,шт"},
                    Form{"blank rows", "\n\r\n,,\n"
                                       "code,name,price,tara_mode,tara_capacity,pack,unit\n\n"
                                       "BEER,Пиво,140.50,2,,1,л\n  \n,,,,,,\n\" \"\n"
                                       "PET,Бутылка,9,1,1.5,1,шт\n\n"},
                    Form{"spaces around fields",
                         "code, name ,price,tara_mode,\" tara_capacity \",pack ,unit\n"
                         " BEER,\tПиво ,140.50 , 2 , ,1,л\n"
                         "PET,\" Бутылка \", 9,1,1.5,1,шт \n"},
                    Form{"unbreakable spaces around fields",
                         "code,name,price,tara_mode,tara_capacity,pack,unit\n"
                         "\u00A0BEER\u00A0,Пиво,140.50\u00A0,2,\u00A0,1,л\n"
                         "PET,Бутылка,9,1,1.5,1,шт\n"}));

INSTANTIATE_TEST_SUITE_P(
    Headers, CatalogueForm,
    testing::Values(
        Form{"another order", "unit,tara_capacity,name,pack,code,tara_mode,price\n"
                              "л,,Пиво,1,BEER,2,140.50\n"
                              "шт,1.5,Бутылка,1,PET,1,9\n"},
        Form{"other columns among ours",
             "no,code,name,supplier,price,tara_mode,tara_capacity,pack,unit,,\n"
             "1,BEER,Пиво,a,140.50,2,,1,л,,\n"
             "2,PET,Бутылка,b,9,1,1.5,1,шт,x,y\n"},
        Form{"spaces for underlines", "code,name,price,tara mode,tara capacity,pack,unit\n"
                                      "BEER,Пиво,140.50,2,,1,л\n"
                                      "PET,Бутылка,9,1,1.5,1,шт\n"},
        Form{"capital letters", "CODE,Name,PRICE,Tara_Mode,TARA CAPACITY,Pack,Unit\n"
                                "BEER,Пиво,140.50,2,,1,л\n"
                                "PET,Бутылка,9,1,1.5,1,шт\n"},
        Form{"Russian", "код;наименование;цена;режим тары;ёмкость тары;упаковка;единица\n"
                        "BEER;Пиво;140,50;2;;1;л\n"
                        "PET;Бутылка;9;1;1,5;1;шт\n"},
        Form{"Russian, otherwise", "Код;Название;ЦЕНА;Режим тары;Емкость тары;Упаковка;Единица\n"
                                   "BEER;Пиво;140,50;2;;1;л\n"
                                   "PET;Бутылка;9;1;1,5;1;шт\n"}));

INSTANTIATE_TEST_SUITE_P(
    Values, CatalogueForm,
    testing::Values(Form{"decimal commas", "code;name;price;tara_mode;tara_capacity;pack;unit\n"
                                           "BEER;Пиво;140,50;2;;1,000;л\n"
                                           "PET;Бутылка;9,0;1;1,5;1;шт\n"},
                    Form{"decimal commas between commas",
                         "code,name,price,tara_mode,tara_capacity,pack,unit\n"
                         "BEER,Пиво,\"140,50\",2,0,1,л\n"
                         "PET,Бутылка,9,1,\"1,5\",1,шт\n"},
                    Form{"empty pack", "code,name,price,tara_mode,tara_capacity,pack,unit\n"
                                       "BEER,Пиво,140.50,2,,,л\n"
                                       "PET,Бутылка,9,1,1.5,,шт\n"}));

class CatalogueName : public CatalogueFile
{
protected:
    QString nameOf(const QByteArray &field)
    {
        const auto articles = articlesOf("code;name;price;tara mode;tara capacity;pack;unit\n"
                                         "A;"
                                         + field + ";1;0;0;1;kg\n");
        return articles.first().name;
    }
};

TEST_F(CatalogueName, InQuotes_MayHoldSeparators)
{
    EXPECT_EQ(nameOf("\"Сыр; твёрдый, 45%\""), "Сыр; твёрдый, 45%");
}

TEST_F(CatalogueName, InQuotes_MayHoldDoubledQuotes)
{
    EXPECT_EQ(nameOf("\"Сыр \"\"Дачный\"\"\""), "Сыр \"Дачный\"");
}

TEST_F(CatalogueName, InQuotes_MayStandBetweenLineBreaks)
{
    EXPECT_EQ(nameOf("\"\r\nСыр\n\""), "Сыр");
}

TEST_F(CatalogueName, WithRunsOfSpaces_HasSingleSpaces)
{
    EXPECT_EQ(nameOf("Сыр   твёрдый"), "Сыр твёрдый");
}

TEST_F(CatalogueName, OutsideTheBasicPlane_IsKept)
{
    EXPECT_EQ(nameOf("Сыр 🧀"), "Сыр 🧀");
}

} // namespace
