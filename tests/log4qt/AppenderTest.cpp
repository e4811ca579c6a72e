#include "tests/log4qt/JournalAppender.h"
#include "tests/support/Printers.h"
#include "tests/support/QtLines.h"

#include <gtest/gtest.h>

namespace {

//! Two appenders of one journal and a logger, to which the tests add them.
class Appender : public testing::Test
{
protected:
    ~Appender() override
    {
        for (const auto &appender :
             {Log4Qt::AppenderSharedPtr(one), Log4Qt::AppenderSharedPtr(two)})
            logger->removeAppender(appender);
    }

    const QtLines quiet;
    QStringList journal;
    Log4Qt::Logger *logger = Log4Qt::LogManager::logger("log4qt_test");
    QSharedPointer<JournalAppender> one{new JournalAppender("one", journal)};
    QSharedPointer<JournalAppender> two{new JournalAppender("two", journal)};
};

TEST_F(Appender, Event_HasLevelMessageAndLoggerName)
{
    struct Keeper : Log4Qt::AppenderSkeleton
    {
        bool requiresLayout() const override { return false; }
        void append(const Log4Qt::LoggingEvent &event) override { events << event; }
        QList<Log4Qt::LoggingEvent> events;
    };
    const QSharedPointer<Keeper> keeper(new Keeper);
    logger->addAppender(keeper);
    logger->info("позиция %1", 7);
    logger->error("Ошибка");
    logger->removeAppender(keeper);

    ASSERT_EQ(keeper->events.size(), 2);
    EXPECT_EQ(keeper->events[0].level(), Log4Qt::Level(Log4Qt::Level::INFO_INT));
    EXPECT_EQ(keeper->events[0].message(), "позиция 7");
    EXPECT_EQ(keeper->events[0].logger()->name(), "log4qt_test");
    EXPECT_EQ(keeper->events[1].level(), Log4Qt::Level(Log4Qt::Level::ERROR_INT));
    EXPECT_EQ(keeper->events[1].message(), "Ошибка");
}

TEST_F(Appender, Levels_AreOrderedByWeight)
{
    const Log4Qt::Level info(Log4Qt::Level::INFO_INT);
    const Log4Qt::Level error(Log4Qt::Level::ERROR_INT);

    EXPECT_LT(info.toInt(), error.toInt());
    EXPECT_TRUE(info != error);
    EXPECT_EQ(info.toString(), "INFO");
    EXPECT_EQ(error.toString(), "ERROR");
}

TEST_F(Appender, NotAdded_GetsNothing)
{
    logger->addAppender(one);
    logger->info("line");

    EXPECT_EQ(journal, QStringList{"one log4qt_test INFO line"});
}

TEST_F(Appender, SeveralAppenders_AreCalledInOrderOfAdding)
{
    logger->addAppender(two);
    logger->addAppender(one);
    logger->info("line");

    EXPECT_EQ(journal, (QStringList{"two log4qt_test INFO line", "one log4qt_test INFO line"}));
}

TEST_F(Appender, AddedTwice_GetsALineOnce)
{
    logger->addAppender(one);
    logger->addAppender(one);
    logger->info("line");

    EXPECT_EQ(journal.size(), 1);
}

TEST_F(Appender, AddedTwice_IsRemovedAtOnce)
{
    logger->addAppender(one);
    logger->addAppender(one);
    logger->removeAppender(one);
    logger->info("line");

    EXPECT_EQ(journal, QStringList());
}

TEST_F(Appender, Removed_GetsNothingMore)
{
    logger->addAppender(one);
    logger->addAppender(two);
    logger->removeAppender(one);
    logger->info("line");

    EXPECT_EQ(journal, QStringList{"two log4qt_test INFO line"});
}

TEST_F(Appender, NeverAdded_CanBeRemoved)
{
    logger->addAppender(one);
    logger->removeAppender(two);
    logger->info("line");

    EXPECT_EQ(journal.size(), 1);
}

TEST_F(Appender, Added_IsSharedWithTheLogger)
{
    const auto weak = one.toWeakRef();
    logger->addAppender(one);
    one.reset();
    EXPECT_FALSE(weak.isNull());

    logger->removeAppender(weak.toStrongRef());
    EXPECT_TRUE(weak.isNull());
}

TEST_F(Appender, OtherLogger_IsNotHeard)
{
    logger->addAppender(one);
    Log4Qt::LogManager::logger("log4qt_test.other")->info("line");
    Log4Qt::LogManager::logger("log4qt")->info("line");

    EXPECT_EQ(journal, QStringList());
}

TEST_F(Appender, OfTwoLoggers_TellsThemApart)
{
    auto *other = Log4Qt::LogManager::logger("log4qt_test.other");
    logger->addAppender(one);
    other->addAppender(one);
    logger->info("line");
    other->info("line");
    other->removeAppender(one);

    EXPECT_EQ(journal,
              (QStringList{"one log4qt_test INFO line", "one log4qt_test.other INFO line"}));
}

TEST_F(Appender, RemovesItselfWhileCalled_OthersGetTheLine)
{
    logger->addAppender(one);
    logger->addAppender(two);
    one->onNextLine([this] { logger->removeAppender(one); });
    logger->info("first");
    logger->info("second");

    EXPECT_EQ(journal, (QStringList{"one log4qt_test INFO first", "two log4qt_test INFO first",
                                    "two log4qt_test INFO second"}));
}

TEST_F(Appender, LastOwnerRemovesItWhileCalled_ReturnsSafely)
{
    const auto weak = one.toWeakRef();
    logger->addAppender(one);
    one->onNextLine([this, weak] { logger->removeAppender(weak.toStrongRef()); });
    one.reset();
    logger->info("first");
    logger->info("second");

    EXPECT_TRUE(weak.isNull());
    EXPECT_EQ(journal, QStringList{"one log4qt_test INFO first"});
}

TEST_F(Appender, RemovesAnotherWhileCalled_TheOtherGetsNoLaterLine)
{
    logger->addAppender(one);
    logger->addAppender(two);
    one->onNextLine([this] { logger->removeAppender(two); });
    logger->info("first");
    journal.clear();
    logger->info("second");

    EXPECT_EQ(journal, QStringList{"one log4qt_test INFO second"});
}

TEST_F(Appender, AddedWhileAnotherIsCalled_GetsTheNextLineFirst)
{
    logger->addAppender(one);
    one->onNextLine([this] { logger->addAppender(two); });
    logger->info("first");
    EXPECT_EQ(journal, QStringList{"one log4qt_test INFO first"});

    journal.clear();
    logger->info("second");
    EXPECT_EQ(journal, (QStringList{"one log4qt_test INFO second", "two log4qt_test INFO second"}));
}

TEST_F(Appender, LogsWhileCalled_TheNestedLineComesBetween)
{
    logger->addAppender(one);
    logger->addAppender(two);
    one->onNextLine([this] { logger->error("nested"); });
    logger->info("outer");

    EXPECT_EQ(journal, (QStringList{"one log4qt_test INFO outer", "one log4qt_test ERROR nested",
                                    "two log4qt_test ERROR nested", "two log4qt_test INFO outer"}));
}

} // namespace
