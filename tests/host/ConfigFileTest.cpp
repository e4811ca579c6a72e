#include "tests/host/WarningCapture.h"
#include "tests/support/Printers.h"

#include "host/Config.h"

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

namespace {

//! A settings file of one setting, and a configuration that reads it.
class ConfigFile : public testing::Test
{
protected:
    void write(const QByteArray &text)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(text), text.size());
    }

    const QString key = QStringLiteral("PackagingControl:allowSaleEmptyTara");
    QTemporaryDir directory;
    QString path = directory.filePath("till.ini");
    Config config;
};

TEST_F(ConfigFile, SectionAndKey_BecomeOneKey)
{
    write("[PackagingControl]\nallowSaleEmptyTara=false\n");

    EXPECT_EQ(config.readFile(path), QString());
    EXPECT_FALSE(config.getBool(key, true));
}

TEST_F(ConfigFile, EverySection_IsRead)
{
    write("[One]\nfirst=true\nsecond=true\n[Two]\nfirst=true\n");

    EXPECT_EQ(config.readFile(path), QString());
    EXPECT_TRUE(config.getBool("One:first", false));
    EXPECT_TRUE(config.getBool("One:second", false));
    EXPECT_TRUE(config.getBool("Two:first", false));
    EXPECT_FALSE(config.getBool("Two:second", false));
}

TEST_F(ConfigFile, EmptyFile_HoldsNothing)
{
    write("");

    EXPECT_EQ(config.readFile(path), QString());
    EXPECT_TRUE(config.getBool(key, true));
}

TEST_F(ConfigFile, EmptyValue_IsTheDefault)
{
    const WarningCapture warnings;
    write("[PackagingControl]\nallowSaleEmptyTara=\n");

    EXPECT_EQ(config.readFile(path), QString());
    EXPECT_TRUE(config.getBool(key, true));
    EXPECT_EQ(warnings.lines().size(), 1);
}

TEST_F(ConfigFile, ListOfValues_IsTheDefault)
{
    const WarningCapture warnings;
    write("[PackagingControl]\nallowSaleEmptyTara=false, false\n");

    EXPECT_EQ(config.readFile(path), QString());
    EXPECT_TRUE(config.getBool(key, true));
    EXPECT_EQ(warnings.lines().size(), 1);
}

TEST_F(ConfigFile, SettingOfTheFile_OverrulesTheEarlierOne)
{
    config.set(key, true);
    write("[PackagingControl]\nallowSaleEmptyTara=false\n");

    EXPECT_EQ(config.readFile(path), QString());
    EXPECT_FALSE(config.getBool(key, true));
}

TEST_F(ConfigFile, SettingNotInTheFile_Stays)
{
    config.set(key, false);
    write("[Other]\nsetting=true\n");

    EXPECT_EQ(config.readFile(path), QString());
    EXPECT_FALSE(config.getBool(key, true));
}

TEST_F(ConfigFile, ChangedFile_IsReadAnew)
{
    write("[PackagingControl]\nallowSaleEmptyTara=false\n");
    config.readFile(path);
    write("[PackagingControl]\nallowSaleEmptyTara=yes\n");

    EXPECT_EQ(config.readFile(path), QString());
    EXPECT_TRUE(config.getBool(key, false));
}

TEST_F(ConfigFile, ReadFile_LeavesTheFileAsItIs)
{
    const QByteArray text = "; a comment\n[PackagingControl]\nallowSaleEmptyTara = off\n";
    write(text);
    config.readFile(path);
    config.set(key, true);

    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), text);
}

TEST_F(ConfigFile, ReadFile_LeavesNothingBesideTheFile)
{
    write("[PackagingControl]\nallowSaleEmptyTara=off\n");
    config.readFile(path);

    EXPECT_EQ(QDir(directory.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
              QStringList{"till.ini"});
}

class ConfigFileSpelling : public ConfigFile,
                           public testing::WithParamInterface<std::pair<const char *, bool>>
{
};

TEST_P(ConfigFileSpelling, KnownSpelling_OverrulesTheDefault)
{
    const auto [spelling, meaning] = GetParam();
    write(QByteArray("[PackagingControl]\nallowSaleEmptyTara=") + spelling + '\n');

    ASSERT_EQ(config.readFile(path), QString());
    EXPECT_EQ(config.getBool(key, !meaning), meaning);
}

INSTANTIATE_TEST_SUITE_P(Each, ConfigFileSpelling,
                         testing::Values(std::pair("true", true), std::pair("yes", true),
                                         std::pair("on", true), std::pair("1", true),
                                         std::pair("Yes", true), std::pair(" true ", true),
                                         std::pair("\"true\"", true), std::pair("false", false),
                                         std::pair("no", false), std::pair("off", false),
                                         std::pair("0", false), std::pair("OFF", false)));

TEST_F(ConfigFile, MissingFile_IsAnErrorThatNamesThePath)
{
    EXPECT_TRUE(config.readFile(path).contains(path));
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(ConfigFile, Directory_IsAnErrorThatNamesThePath)
{
    EXPECT_TRUE(config.readFile(directory.path()).contains(directory.path()));
}

TEST_F(ConfigFile, FileThatCannotBeRead_IsAnErrorThatNamesThePath)
{
    // Opens, but nothing is mapped at its start.
    const QString unreadable = "/proc/self/mem";

    EXPECT_TRUE(config.readFile(unreadable).contains(unreadable));
}

class BrokenConfigFile : public ConfigFile, public testing::WithParamInterface<const char *>
{
};

TEST_P(BrokenConfigFile, BrokenFile_IsAnErrorThatNamesThePath)
{
    write(GetParam());

    EXPECT_TRUE(config.readFile(path).contains(path)) << config.readFile(path).toStdString();
}

TEST_P(BrokenConfigFile, BrokenFile_GivesNoneOfItsSettings)
{
    write(GetParam());
    config.readFile(path);

    EXPECT_TRUE(config.getBool(key, true));
    EXPECT_FALSE(config.getBool(key, false));
}

TEST_P(BrokenConfigFile, BrokenFile_LeavesEarlierSettings)
{
    config.set(key, true);
    write(GetParam());
    config.readFile(path);

    EXPECT_TRUE(config.getBool(key, false));
}

TEST_P(BrokenConfigFile, BrokenFileReadTwice_IsAnErrorTwice)
{
    write(GetParam());
    config.readFile(path);

    EXPECT_TRUE(config.readFile(path).contains(path));
    EXPECT_TRUE(config.getBool(key, true));
}

INSTANTIATE_TEST_SUITE_P(
    Each, BrokenConfigFile,
    testing::Values("[PackagingControl]\nallowSaleEmptyTara=false\nno equals sign\n",
                    "[PackagingControl]\nallowSaleEmptyTara=false\n[Unclosed\n"));

} // namespace
