#include "tests/support/Printers.h"
#include "tests/till/goods/CatalogueFile.h"

#include <gtest/gtest.h>

#include <algorithm>

// The catalogue that comes with the till.

namespace {

using till::ArticleData;
using till::Catalogue;

class SampleCatalogue : public testing::Test
{
protected:
    void SetUp() override
    {
        articles = must(Catalogue::load(TILL_SHARE_DIR "/catalogue.csv")).articles();
    }

    template <typename Predicate>
    auto count(Predicate predicate) const
    {
        return std::count_if(articles.cbegin(), articles.cend(),
                             [&](const auto &article) { return predicate(article->data); });
    }

    QList<QSharedPointer<till::Article>> articles;
};

TEST_F(SampleCatalogue, HoldsAShopOfDraughtGoods)
{
    EXPECT_GE(articles.size(), 18);
    EXPECT_GE(count([](const ArticleData &a) { return a.taraMode == Tmc::Tara; }), 9);
    EXPECT_GE(count([](const ArticleData &a) { return a.taraMode == Tmc::PackagingGoods; }), 7);
    EXPECT_GE(count([](const ArticleData &a) { return a.taraMode == Tmc::NoTara; }), 4);
}

TEST_F(SampleCatalogue, HoldsGoodsOfEachKindInPacks)
{
    const auto inPacks = [](int mode) {
        return [mode](const ArticleData &a) { return a.taraMode == mode && a.pack != 1.0; };
    };

    EXPECT_GE(count(inPacks(Tmc::PackagingGoods)), 1);
    EXPECT_GE(count(inPacks(Tmc::NoTara)), 1);
}

TEST_F(SampleCatalogue, NamesTheUnitAndPriceOfEachArticle)
{
    EXPECT_EQ(count([](const ArticleData &a) { return a.unit.isEmpty() || a.price == 0; }), 0);
}

} // namespace
