#include "tests/support/Printers.h"
#include "tests/till/support/FolderTest.h"
#include "tests/till/support/Results.h"

#include "host/Config.h"
#include "till/settings/SettingsFile.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

namespace {

//! A settings file of one setting, and a configuration that reads it.
class SettingsFile : public till::FolderTest
{
protected:
    void write(const QByteArray &text) { overwrite(path, text); }

    QString read() { return till::faultText(till::readSettingsFile(path, config)); }

    const QString key = QStringLiteral("PackagingControl:allowSaleEmptyTara");
    QString path = directory.filePath("till.ini");
    Config config;
};

TEST_F(SettingsFile, SectionAndKey_BecomeOneKey)
{
    write("[PackagingControl]\nallowSaleEmptyTara=false\n");

    EXPECT_EQ(read(), QString());
    EXPECT_FALSE(config.getBool(key, true));
}

TEST_F(SettingsFile, ByteOrderMarkAndComments_MeanNothing)
{
    write("\xef\xbb\xbf# a till\r\n; its settings\r\n [ PackagingControl ] # of the plugin\r\n"
          "\r\n  allowSaleEmptyTara = \"no\" ; not here\r\n");

    EXPECT_EQ(read(), QString());
    EXPECT_FALSE(config.getBool(key, true));
}

TEST_F(SettingsFile, UnknownSection_IsNamedWithItsLineAlsoWhenEmpty)
{
    for (const QByteArray file : {"[Goods]", "[Goods]\nallowSaleEmptyTara=false\n",
                                  "[Goods]\n[PackagingControl]\nallowSaleEmptyTara=false\n"}) {
        write(file);
        EXPECT_EQ(read(), path + ":1: no section [Goods]; there is [PackagingControl]");
        EXPECT_TRUE(config.getBool(key, true));
    }
    write("[PackagingControl]\n[]\n");
    EXPECT_EQ(read(), path + ":2: no section []; there is [PackagingControl]");
}

TEST_F(SettingsFile, KeyWithoutItsSection_BringsTheOneThatIsMeant)
{
    EXPECT_EQ(till::checkSetting("allowSaleEmptyTara", "false").error().values.value(1), key);
    EXPECT_EQ(till::checkSetting("colour", "false").error().values.size(), 1);
}

TEST_F(SettingsFile, UnknownKey_IsNamedWithItsLineAndTheNearestOne)
{
    write("[PackagingControl]\nallowSaleEmptyTara=no\nallowSaleEmtyTara=no\n");
    EXPECT_EQ(read(), path
                          + ":3: no setting \"PackagingControl:allowSaleEmtyTara\"; did you mean "
                            "'PackagingControl:allowSaleEmptyTara'?");
    EXPECT_TRUE(config.getBool(key, true));
    write("[PackagingControl]\nthing=no\n");
    EXPECT_EQ(read(), path + ":2: no setting \"PackagingControl:thing\"");
}

TEST_F(SettingsFile, EmptyFile_HoldsNothing)
{
    write("");

    EXPECT_EQ(read(), QString());
    EXPECT_TRUE(config.getBool(key, true));
}

TEST_F(SettingsFile, ValueThatIsNoBoolean_IsNamedWithItsLine)
{
    for (const QByteArray value : {"", "perhaps", "false, false"}) {
        write("[PackagingControl]\nallowSaleEmptyTara=" + value + "\n");
        EXPECT_EQ(read(), path + ":2: " + key + ": \"" + value + "\" is neither true nor false");
        EXPECT_TRUE(config.getBool(key, true));
    }
}

TEST_F(SettingsFile, WhatIsNoSetting_IsNamedWithItsLine)
{
    write("\n[PackagingControl\n");
    EXPECT_EQ(read(), path + ":2: a section is not closed with \"]\"");
    write("[PackagingControl]\nno equals sign\n");
    EXPECT_EQ(read(), path + ":2: neither [SECTION] nor KEY=VALUE");
    write("allowSaleEmptyTara=no\n");
    EXPECT_EQ(read(), path + ":1: there is no [SECTION] above it");
    write("# \xff\n");
    EXPECT_EQ(read(), path + ": not UTF-8 text");
}

TEST_F(SettingsFile, SettingOfTheFile_OverrulesTheEarlierOne)
{
    config.set(key, true);
    write("[PackagingControl]\nallowSaleEmptyTara=false\n");

    EXPECT_EQ(read(), QString());
    EXPECT_FALSE(config.getBool(key, true));
}

TEST_F(SettingsFile, SettingNotInTheFile_Stays)
{
    config.set(key, false);
    write("[PackagingControl]\n");

    EXPECT_EQ(read(), QString());
    EXPECT_FALSE(config.getBool(key, true));
}

TEST_F(SettingsFile, ChangedFile_IsReadAnew)
{
    write("[PackagingControl]\nallowSaleEmptyTara=false\n");
    read();
    write("[PackagingControl]\nallowSaleEmptyTara=yes\n");

    EXPECT_EQ(read(), QString());
    EXPECT_TRUE(config.getBool(key, false));
}

TEST_F(SettingsFile, Reading_LeavesTheFileAsItIs)
{
    const QByteArray text = "; a comment\n[PackagingControl]\nallowSaleEmptyTara = off\n";
    write(text);
    read();
    config.set(key, true);

    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), text);
}

TEST_F(SettingsFile, Reading_LeavesNothingBesideTheFile)
{
    write("[PackagingControl]\nallowSaleEmptyTara=off\n");
    read();

    EXPECT_EQ(QDir(directory.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
              QStringList{"till.ini"});
}

class SettingsFileSpelling : public SettingsFile,
                             public testing::WithParamInterface<std::pair<const char *, bool>>
{
};

TEST_P(SettingsFileSpelling, KnownSpelling_OverrulesTheDefault)
{
    const auto [spelling, meaning] = GetParam();
    write(QByteArray("[PackagingControl]\nallowSaleEmptyTara=") + spelling + '\n');

    ASSERT_EQ(read(), QString());
    EXPECT_EQ(config.getBool(key, !meaning), meaning);
}

INSTANTIATE_TEST_SUITE_P(Each, SettingsFileSpelling,
                         testing::Values(std::pair("true", true), std::pair("yes", true),
                                         std::pair("on", true), std::pair("1", true),
                                         std::pair("Yes", true), std::pair(" true ", true),
                                         std::pair("\"true\"", true), std::pair("false", false),
                                         std::pair("no", false), std::pair("off", false),
                                         std::pair("0", false), std::pair("OFF", false)));

TEST_F(SettingsFile, MissingFile_IsAnErrorThatNamesThePath)
{
    EXPECT_TRUE(read().contains(path));
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(SettingsFile, Directory_IsAnErrorThatNamesThePath)
{
    EXPECT_TRUE(till::faultText(till::readSettingsFile(directory.path(), config))
                    .contains(directory.path()));
}

TEST_F(SettingsFile, FileThatCannotBeRead_IsAnErrorThatNamesThePath)
{
    // Opens, but nothing is mapped at its start.
    const QString unreadable = "/proc/self/mem";

    EXPECT_TRUE(till::faultText(till::readSettingsFile(unreadable, config)).contains(unreadable));
}

class BrokenSettingsFile : public SettingsFile, public testing::WithParamInterface<const char *>
{
};

TEST_P(BrokenSettingsFile, BrokenFile_IsAnErrorThatNamesThePath)
{
    write(GetParam());

    EXPECT_TRUE(read().contains(path)) << read().toStdString();
}

TEST_P(BrokenSettingsFile, BrokenFile_GivesNoneOfItsSettings)
{
    write(GetParam());
    read();

    EXPECT_TRUE(config.getBool(key, true));
    EXPECT_FALSE(config.getBool(key, false));
}

TEST_P(BrokenSettingsFile, BrokenFile_LeavesEarlierSettings)
{
    config.set(key, true);
    write(GetParam());
    read();

    EXPECT_TRUE(config.getBool(key, false));
}

TEST_P(BrokenSettingsFile, BrokenFileReadTwice_IsAnErrorTwice)
{
    write(GetParam());
    read();

    EXPECT_TRUE(read().contains(path));
    EXPECT_TRUE(config.getBool(key, true));
}

INSTANTIATE_TEST_SUITE_P(
    Each, BrokenSettingsFile,
    testing::Values("[PackagingControl]\nallowSaleEmptyTara=false\nno equals sign\n",
                    "[PackagingControl]\nallowSaleEmptyTara=false\n[Unclosed\n"));

} // namespace
