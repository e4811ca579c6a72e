#include "tests/log4qt/JournalAppender.h"
#include "tests/support/Printers.h"
#include "tests/support/QtLines.h"

#include <gtest/gtest.h>

#include <QtCore/QLoggingCategory>

namespace {

//! What Qt prints of the lines, in the pattern "CATEGORY|TYPE|MESSAGE", beside what appenders get.
class QtOutput : public testing::Test
{
protected:
    ~QtOutput() override { QLoggingCategory::setFilterRules(QString()); }

    //! Logs a line of each level through the logger \a name.
    void logBoth(const QString &name)
    {
        const Log4Qt::AppenderSharedPtr appender(new JournalAppender("-", journal));
        auto *logger = Log4Qt::LogManager::logger(name);
        logger->addAppender(appender);
        logger->info("позиция %1", 7);
        logger->error("Ошибка");
        logger->removeAppender(appender);
    }

    QStringList journal;
    const QtLines printed;
};

TEST_F(QtOutput, Category_IsTheLoggersName)
{
    logBoth("log4qt_test.loud");

    EXPECT_EQ(printed(),
              (QStringList{"log4qt_test.loud|info|позиция 7", "log4qt_test.loud|critical|Ошибка"}));
}

TEST_F(QtOutput, WithoutAnAppender_IsPrintedToo)
{
    Log4Qt::LogManager::logger("log4qt_test.loud")->info("line");

    EXPECT_EQ(printed(), QStringList{"log4qt_test.loud|info|line"});
}

TEST_F(QtOutput, Level_IsEnabledForWhoeverReceivesIt)
{
    auto *logger = Log4Qt::LogManager::logger("log4qt_test.loud");
    EXPECT_TRUE(logger->isEnabledFor(Log4Qt::Level::INFO_INT));
    EXPECT_TRUE(logger->isEnabledFor(Log4Qt::Level::ERROR_INT));

    QLoggingCategory::setFilterRules("log4qt_test.loud.info=false");
    EXPECT_FALSE(logger->isEnabledFor(Log4Qt::Level::INFO_INT));
    EXPECT_TRUE(logger->isEnabledFor(Log4Qt::Level::ERROR_INT));

    const Log4Qt::AppenderSharedPtr appender(new JournalAppender("-", journal));
    logger->addAppender(appender);
    EXPECT_TRUE(logger->isEnabledFor(Log4Qt::Level::INFO_INT));
    logger->removeAppender(appender);
    EXPECT_FALSE(logger->isEnabledFor(Log4Qt::Level::INFO_INT));
}

TEST_F(QtOutput, Text_IsNeitherQuotedNorEscaped)
{
    Log4Qt::LogManager::logger("log4qt_test.loud")->info("\"тара\"\t%1 ", QString("\\"));

    EXPECT_EQ(printed(), QStringList{"log4qt_test.loud|info|\"тара\"\t\\ "});
}

TEST_F(QtOutput, LevelRule_SilencesThatLevelOnly)
{
    QLoggingCategory::setFilterRules("log4qt_test.loud.info=false");
    logBoth("log4qt_test.loud");

    EXPECT_EQ(printed(), QStringList{"log4qt_test.loud|critical|Ошибка"});
}

TEST_F(QtOutput, CategoryRule_SilencesEveryLevel)
{
    QLoggingCategory::setFilterRules("log4qt_test.loud=false");
    logBoth("log4qt_test.loud");

    EXPECT_EQ(printed(), QStringList());
}

TEST_F(QtOutput, Silenced_AppendersGetEveryLine)
{
    QLoggingCategory::setFilterRules("log4qt_test.loud=false");
    logBoth("log4qt_test.loud");

    EXPECT_EQ(journal, (QStringList{"- log4qt_test.loud INFO позиция 7",
                                    "- log4qt_test.loud ERROR Ошибка"}));
}

TEST_F(QtOutput, RuleForAnotherCategory_SilencesNothing)
{
    QLoggingCategory::setFilterRules("log4qt_test=false");
    logBoth("log4qt_test.loud");

    EXPECT_EQ(printed().size(), 2);
}

TEST_F(QtOutput, RuleTakenBack_PrintsAgain)
{
    QLoggingCategory::setFilterRules("log4qt_test.loud=false");
    logBoth("log4qt_test.loud");
    QLoggingCategory::setFilterRules(QString());
    logBoth("log4qt_test.loud");

    EXPECT_EQ(printed().size(), 2);
}

TEST_F(QtOutput, RuleOfTheEnvironment_SilencesTheLevel)
{
    logBoth("log4qt_test.silenced");

    EXPECT_EQ(printed(), QStringList{"log4qt_test.silenced|critical|Ошибка"});
    EXPECT_EQ(journal.size(), 2);
}

TEST_F(QtOutput, WildcardRuleOfTheEnvironment_SilencesTheTree)
{
    logBoth("log4qt_test.tree.leaf");

    EXPECT_EQ(printed(), QStringList());
    EXPECT_EQ(journal.size(), 2);
}

TEST_F(QtOutput, LoggerMadeAfterTheRule_ObeysIt)
{
    QLoggingCategory::setFilterRules("log4qt_test.young=false");
    logBoth("log4qt_test.young");

    EXPECT_EQ(printed(), QStringList());
}

} // namespace
