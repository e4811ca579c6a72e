#include "till/course/Observers.h"

#include <QtCore/QStringList>

#include <gtest/gtest.h>

#include <optional>

// Those who hear of something may come and go at any time, also while they hear.

namespace till {

namespace {

class Hearers : public testing::Test
{
protected:
    //! One that writes down its name and what it hears.
    Subscription hearer(const QString &name)
    {
        return observers.subscribe([this, name](int what) { hear(name, what); });
    }
    void hear(const QString &name, int what) { heard.append(name + ' ' + QString::number(what)); }

    Observers<int> observers;
    QStringList heard;
};

TEST_F(Hearers, All_HearInTheOrderInWhichTheyCame)
{
    const auto c = hearer("c");
    const auto a = hearer("a");
    const auto b = hearer("b");
    observers.tell(1);
    observers.tell(2);
    EXPECT_EQ(heard, QStringList({"c 1", "a 1", "b 1", "c 2", "a 2", "b 2"}));
}

TEST_F(Hearers, OneThatWentAndCameAgain_IsTheLast)
{
    auto a = hearer("a");
    const auto b = hearer("b");
    a.reset();
    a = hearer("a");
    observers.tell(1);
    EXPECT_EQ(heard, QStringList({"b 1", "a 1"}));
}

TEST_F(Hearers, OneThatComesWhileItIsTold_HearsFromTheNextTimeOn)
{
    Subscription late;
    const auto first = observers.subscribe([&](int what) {
        hear("first", what);
        if (!late)
            late = hearer("late");
    });
    observers.tell(1);
    EXPECT_EQ(heard, QStringList({"first 1"}));
    observers.tell(2);
    EXPECT_EQ(heard, QStringList({"first 1", "first 2", "late 2"}));
}

TEST_F(Hearers, OneThatIsSentAwayWhileItIsTold_HearsNoMore)
{
    Subscription second;
    const auto first = observers.subscribe([&](int what) {
        hear("first", what);
        second.reset();
    });
    second = hearer("second");
    const auto third = hearer("third");
    observers.tell(1);
    EXPECT_EQ(heard, QStringList({"first 1", "third 1"}));
}

TEST_F(Hearers, OneThatGoesWhileItHears_HearsToTheEnd)
{
    Subscription self;
    const auto kept = std::make_shared<QString>("kept");
    self = observers.subscribe([this, &self, kept](int what) {
        self.reset();
        hear(*kept, what);
    });
    observers.tell(1);
    observers.tell(2);
    EXPECT_EQ(heard, QStringList("kept 1"));
    EXPECT_EQ(kept.use_count(), 1);
}

TEST_F(Hearers, WhatTheyTellThemselves_IsToldInBetween)
{
    const auto first = observers.subscribe([&](int what) {
        hear("first", what);
        if (what == 1)
            observers.tell(2);
    });
    const auto second = hearer("second");
    observers.tell(1);
    EXPECT_EQ(heard, QStringList({"first 1", "first 2", "second 2", "second 1"}));
}

TEST_F(Hearers, None_AreThereOnceAllTokensAreGone)
{
    EXPECT_TRUE(observers.isEmpty());
    auto a = hearer("a");
    auto copy = a;
    a.reset();
    EXPECT_FALSE(observers.isEmpty());
    copy.reset();
    EXPECT_TRUE(observers.isEmpty());
}

TEST(Token, ThatOutlivesWhatIsObserved_DoesNoHarm)
{
    std::optional<Observers<>> observers(std::in_place);
    Subscription token = observers->subscribe([] {});
    observers.reset();
    token.reset();
    EXPECT_FALSE(token);
}

} // namespace

} // namespace till
