#include "till/startup/SetupOptions.h"

#include "tests/support/Printers.h"
#include "tests/till/support/FolderTest.h"
#include "tests/till/support/Results.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QDir>

// What every program of the till is told of its files and settings.

namespace till {

namespace {

//! A command line of options, read.
class SetupOptions : public FolderTest
{
protected:
    void parse(const QStringList &words)
    {
        parser.addOptions(setupOptions());
        parser.addOption(languageOption());
        EXPECT_TRUE(parser.parse(QStringList{"till"} + words)) << parser.errorText().toStdString();
    }

    QCommandLineParser parser;
};

TEST_F(SetupOptions, None_NameWhatWasDelivered)
{
    parse({});
    const till::Setup setup = must(readSetup(parser));
    const QString tree = QDir::cleanPath(QCoreApplication::applicationDirPath() + "/..");
    EXPECT_EQ(setup.database, defaultDatabase());
    EXPECT_EQ(setup.catalogue, tree + "/share/packagingcontrol/catalogue.csv");
    EXPECT_TRUE(setup.plugin.startsWith(tree)) << setup.plugin.toStdString();
    EXPECT_TRUE(setup.plugin.endsWith("/PackagingControl.so"));
    EXPECT_EQ(setup.settingsFile, QString());
    EXPECT_TRUE(setup.settings.isEmpty());
    EXPECT_EQ(must(readLanguage(parser)), "ru");
}

TEST_F(SetupOptions, Files_AreThoseThatAreNamed)
{
    parse({"--db", ":memory:", "--catalogue", "c.csv", "--plugin", "p.so", "--config", "s.ini",
           "--lang", "en"});
    const till::Setup setup = must(readSetup(parser));
    EXPECT_EQ(setup.database, ":memory:");
    EXPECT_EQ(setup.catalogue, "c.csv");
    EXPECT_EQ(setup.plugin, "p.so");
    EXPECT_EQ(setup.settingsFile, "s.ini");
    EXPECT_EQ(must(readLanguage(parser)), "en");
}

TEST_F(SetupOptions, NoPlugin_NamesNone)
{
    parse({"--no-plugin"});
    EXPECT_EQ(must(readSetup(parser)).plugin, QString());
}

TEST_F(SetupOptions, SettingThatIsGivenTwice_IsTheLast)
{
    const QString key = "PackagingControl:allowSaleEmptyTara";
    parse({"--set", key + "=true", "--set", key + "=no"});
    EXPECT_EQ(must(readSetup(parser)).settings, (QMap<QString, QString>{{key, "no"}}));
}

TEST_F(SetupOptions, UnknownLanguage_IsRefusedWithThoseThatAreKnown)
{
    parse({"--lang", "RU"});
    EXPECT_EQ(faultText(readLanguage(parser)), "--lang: \"RU\" is none of: ru, en");
}

struct WrongOption
{
    const char *name;
    QStringList words;
    const char *fault;
};

void PrintTo(const WrongOption &wrong, std::ostream *out)
{
    *out << wrong.name;
}

class WrongSetup : public SetupOptions, public testing::WithParamInterface<WrongOption>
{
};

TEST_P(WrongSetup, IsNamed)
{
    parse(GetParam().words);
    EXPECT_EQ(faultText(readSetup(parser)), GetParam().fault);
}

INSTANTIATE_TEST_SUITE_P(
    Options, WrongSetup,
    testing::Values(
        WrongOption{"NoDatabase", {"--db="}, "--db: no file is named"},
        WrongOption{"NoCatalogue", {"--catalogue", ""}, "--catalogue: no file is named"},
        WrongOption{"NoPluginNamed", {"--plugin", ""}, "--plugin: no file is named"},
        WrongOption{"NoSettings", {"--config", ""}, "--config: no file is named"},
        WrongOption{
            "TwoPlugins", {"--no-plugin", "--plugin", "p.so"}, "--no-plugin: --plugin names one"},
        WrongOption{"NoValue", {"--set", "key"}, "--set: \"key\" is not KEY=VALUE"},
        WrongOption{"NoKey", {"--set", "=5"}, "--set: \"=5\" is not KEY=VALUE"},
        WrongOption{"NoSuchSetting", {"--set", "a:b=5"}, "--set: no setting \"a:b\""}),
    [](const auto &row) { return std::string(row.param.name); });

} // namespace

} // namespace till
