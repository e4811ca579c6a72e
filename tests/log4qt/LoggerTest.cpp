#include "tests/log4qt/JournalAppender.h"
#include "tests/support/Printers.h"
#include "tests/support/QtLines.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

using Log4Qt::LogManager;

TEST(LogManager, SameName_IsTheSameLogger)
{
    EXPECT_EQ(LogManager::logger("log4qt_test.one"), LogManager::logger("log4qt_test.one"));
    EXPECT_NE(LogManager::logger("log4qt_test.one"), nullptr);
}

TEST(LogManager, OtherName_IsAnotherLogger)
{
    EXPECT_NE(LogManager::logger("log4qt_test.one"), LogManager::logger("log4qt_test.other"));
    EXPECT_NE(LogManager::logger("log4qt_test.one"), LogManager::logger("log4qt_test.One"));
}

TEST(LogManager, ManyLoggers_LeaveTheFirstInItsPlace)
{
    const auto *first = LogManager::logger("log4qt_test.first");
    for (int i = 0; i < 200; ++i)
        LogManager::logger(QStringLiteral("log4qt_test.many.%1").arg(i));

    EXPECT_EQ(LogManager::logger("log4qt_test.first"), first);
}

TEST(LogManager, Logger_HasTheNameAskedFor)
{
    EXPECT_EQ(LogManager::logger("log4qt_test.one")->name(), "log4qt_test.one");
    EXPECT_EQ(LogManager::logger("упаковка")->name(), "упаковка");
}

//! A logger of the tests, whose lines are kept as "- NAME LEVEL MESSAGE".
class Logger : public testing::Test
{
protected:
    Logger() { logger->addAppender(appender); }
    ~Logger() override { logger->removeAppender(appender); }

    QString line() const { return journal.size() == 1 ? journal[0] : journal.join('\n'); }

    const QtLines quiet;
    QStringList journal;
    Log4Qt::Logger *logger = LogManager::logger("log4qt_test");
    Log4Qt::AppenderSharedPtr appender{new JournalAppender("-", journal)};
};

TEST_F(Logger, InfoWithoutArguments_IsTheMessage)
{
    logger->info("Добавлена тара");
    EXPECT_EQ(line(), "- log4qt_test INFO Добавлена тара");
}

TEST_F(Logger, ErrorWithoutArguments_IsTheMessage)
{
    logger->error("Ошибка");
    EXPECT_EQ(line(), "- log4qt_test ERROR Ошибка");
}

TEST_F(Logger, InfoWithOneArgument_IsFilledIn)
{
    logger->info("позиция %1", 7);
    EXPECT_EQ(line(), "- log4qt_test INFO позиция 7");
}

TEST_F(Logger, ErrorWithOneArgument_IsFilledIn)
{
    logger->error("позиция %1", 7);
    EXPECT_EQ(line(), "- log4qt_test ERROR позиция 7");
}

TEST_F(Logger, InfoWithTwoArguments_IsFilledIn)
{
    logger->info("%1 из %2", 7, QString("тары"));
    EXPECT_EQ(line(), "- log4qt_test INFO 7 из тары");
}

TEST_F(Logger, ErrorWithTwoArguments_IsFilledIn)
{
    logger->error("%1 из %2", 7, QString("тары"));
    EXPECT_EQ(line(), "- log4qt_test ERROR 7 из тары");
}

TEST_F(Logger, InfoWithThreeArguments_IsFilledIn)
{
    logger->info("%1: %2 -> %3", 7, QString::number(1.0, 'f', 3), QString::number(0.5, 'f', 3));
    EXPECT_EQ(line(), "- log4qt_test INFO 7: 1.000 -> 0.500");
}

TEST_F(Logger, ErrorWithThreeArguments_IsFilledIn)
{
    logger->error("%1: %2 -> %3", 7, QString::number(1.0, 'f', 3), QString::number(0.5, 'f', 3));
    EXPECT_EQ(line(), "- log4qt_test ERROR 7: 1.000 -> 0.500");
}

TEST_F(Logger, Places_AreFilledByNumberNotByPosition)
{
    logger->info("%2 %1 %2", QString("one"), QString("two"));
    EXPECT_EQ(line(), "- log4qt_test INFO two one two");
}

TEST_F(Logger, MessageWithoutArguments_KeepsItsPercentSigns)
{
    logger->info("скидка 10% и %1");
    EXPECT_EQ(line(), "- log4qt_test INFO скидка 10% и %1");
}

TEST_F(Logger, EmptyMessage_IsALine)
{
    logger->info(QString());
    EXPECT_EQ(journal, QStringList{"- log4qt_test INFO "});
}

TEST_F(Logger, Lines_ComeInTheOrderLogged)
{
    logger->info("one");
    logger->error("two");
    logger->info("three");

    EXPECT_EQ(journal, (QStringList{"- log4qt_test INFO one", "- log4qt_test ERROR two",
                                    "- log4qt_test INFO three"}));
}

} // namespace
