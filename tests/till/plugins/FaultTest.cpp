#include "till/plugins/PluginLoader.h"

#include "tests/till/support/FolderTest.h"

#include <gmock/gmock.h>

#include <QtCore/QFileInfo>
#include <QtCore/QPluginLoader>

#include <optional>
#include <ostream>
#include <string>

using till::PluginError;
using till::PluginLoader;

namespace {

using testing::HasSubstr;

QString broken(const QString &name)
{
    return QStringLiteral(BROKEN_PLUGIN_DIR "/") + name + QStringLiteral(".so");
}

//! What the loader says of the file; nothing when it takes the file.
std::optional<PluginError> errorOf(const QString &path)
{
    PluginLoader loader;
    const auto result = loader.load(path);
    return result ? std::nullopt : std::optional(result.error());
}

std::string textOf(const PluginError &error)
{
    return error.text().toStdString();
}

bool isLoaded(const QString &path)
{
    return QPluginLoader(path).isLoaded();
}

class LoaderFault : public till::FolderTest
{
protected:
    //! Writes the first \a length bytes of the real plugin to a file; its path.
    QString cutOff(qint64 length) const
    {
        const QString part = path("PackagingControl.so");
        overwrite(part, contents(PACKAGINGCONTROL_PLUGIN_FILE).left(length));
        return part;
    }
};

TEST_F(LoaderFault, NoSuchFile_IsSaid)
{
    const auto error = errorOf("/nowhere/PackagingControl.so");

    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind, PluginError::NoSuchFile);
    EXPECT_EQ(textOf(*error),
              "/nowhere/PackagingControl.so: cannot be loaded as a plugin: expected a "
              "plugin file, found no such file");
}

TEST_F(LoaderFault, RelativePath_IsNamedInFull)
{
    const auto error = errorOf("nowhere.so");

    ASSERT_TRUE(error);
    EXPECT_EQ(error->path, QFileInfo("nowhere.so").absoluteFilePath());
}

TEST_F(LoaderFault, Directory_IsNoPluginFile)
{
    const auto error = errorOf(BROKEN_PLUGIN_DIR);

    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind, PluginError::NoSuchFile);
    EXPECT_THAT(textOf(*error), HasSubstr("expected a plugin file, found a directory"));
}

TEST_F(LoaderFault, TextFile_IsNoLibrary)
{
    overwrite(path("notes.so"), QByteArray(1000, 'x'));

    const auto error = errorOf(path("notes.so"));

    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind, PluginError::NotALibrary);
    EXPECT_THAT(textOf(*error),
                HasSubstr("expected a shared library, found a file of another kind"));
}

class CutOffAfter : public LoaderFault, public testing::WithParamInterface<int>
{
};

TEST_P(CutOffAfter, PerMilleOfTheFile_IsTruncated)
{
    const qint64 whole = QFileInfo(QStringLiteral(PACKAGINGCONTROL_PLUGIN_FILE)).size();
    const qint64 length = whole * GetParam() / 1000;
    const QString part = cutOff(length);

    const auto error = errorOf(part);

    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind, PluginError::Truncated);
    EXPECT_EQ(error->path, part);
    EXPECT_EQ(error->expected, QString("a shared library of %1 bytes").arg(whole));
    EXPECT_EQ(error->found, QString("only its first %1 bytes").arg(length));
}

INSTANTIATE_TEST_SUITE_P(LoaderFault, CutOffAfter, testing::Values(10, 500, 900, 999));

class ShorterThanAHeader : public LoaderFault, public testing::WithParamInterface<int>
{
};

TEST_P(ShorterThanAHeader, File_IsNoLibrary)
{
    const auto error = errorOf(cutOff(GetParam()));

    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind, PluginError::NotALibrary);
    EXPECT_EQ(error->found, QString("a file of another kind, %1 bytes long").arg(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(LoaderFault, ShorterThanAHeader, testing::Values(0, 3, 4, 63));

TEST_F(LoaderFault, LibraryWithoutMetadata_IsNoQtPlugin)
{
    const auto error = errorOf(broken("NoMetadata"));

    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind, PluginError::NoMetadata);
    EXPECT_EQ(error->path, broken("NoMetadata"));
    EXPECT_THAT(textOf(*error), HasSubstr("expected the metadata of a Qt plugin, found none"));
    EXPECT_FALSE(isLoaded(broken("NoMetadata")));
}

TEST_F(LoaderFault, WrongInterface_NamesBothAndRunsNothing)
{
    const auto error = errorOf(broken("WrongInterface"));

    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind, PluginError::WrongInterface);
    EXPECT_EQ(textOf(*error), broken("WrongInterface").toStdString()
                                  + ": cannot be loaded as a plugin: expected interface "
                                    "\"PackagingControl\", found interface "
                                    "\"AnotherControl\"");
    EXPECT_FALSE(qEnvironmentVariableIsSet("WRONG_INTERFACE_WAS_RUN"));
}

TEST_F(LoaderFault, UnresolvedSymbol_IsNamed)
{
    const auto error = errorOf(broken("UnresolvedSymbol"));

    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind, PluginError::NotLoadable);
    EXPECT_EQ(error->path, broken("UnresolvedSymbol"));
    EXPECT_THAT(textOf(*error), HasSubstr("expected a library that this system can load, found "));
    EXPECT_THAT(textOf(*error), HasSubstr("definedNowhere"));
}

struct WrongObject
{
    const char *file;
    const char *expected;
    const char *found;
};

void PrintTo(const WrongObject &row, std::ostream *out)
{
    *out << row.file;
}

class LoaderFaultObject : public testing::TestWithParam<WrongObject>
{
};

TEST_P(LoaderFaultObject, MissingPart_IsNamedAndNothingStaysLoaded)
{
    const auto error = errorOf(broken(GetParam().file));

    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind, PluginError::WrongObject);
    EXPECT_EQ(error->path, broken(GetParam().file));
    EXPECT_EQ(error->expected,
              QString("an object that answers to \"%1\"").arg(GetParam().expected));
    EXPECT_EQ(error->found, QString(GetParam().found));
    EXPECT_FALSE(isLoaded(broken(GetParam().file)));
}

INSTANTIATE_TEST_SUITE_P(
    Files, LoaderFaultObject,
    testing::Values(
        WrongObject{"NoPlugin", "pos.host.BasicPlugin/1.0", "an object of class \"NoPlugin\""},
        WrongObject{"NoListener", "BaseActivityListener", "an object of class \"NoListener\""},
        WrongObject{"NoWatcher", "DocumentWatcher", "an object of class \"NoWatcher\""},
        WrongObject{"NoObject", "pos.host.BasicPlugin/1.0", "no object"}),
    [](const auto &row) { return std::string(row.param.file); });

TEST_F(LoaderFault, AfterAFault_TheSameLoaderLoadsAGoodFile)
{
    PluginLoader loader;
    ASSERT_FALSE(loader.load(broken("NoPlugin")));

    const auto result = loader.load(QStringLiteral(PACKAGINGCONTROL_PLUGIN_FILE));

    EXPECT_TRUE(result);
    EXPECT_TRUE(loader.unload());
}

} // namespace
