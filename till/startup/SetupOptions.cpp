#include "till/startup/SetupOptions.h"

#include "till/database/DatabaseFile.h"
#include "till/language/Translator.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>

#include <tuple>

namespace till {

namespace {

//! Reads the settings of --set, up to the first that is no KEY=VALUE.
Result<> readSettings(const QStringList &assignments, QMap<QString, QString> &settings)
{
    for (const QString &assignment : assignments) {
        const qsizetype equals = assignment.indexOf('=');
        if (equals <= 0)
            return Fault{"--set", '"' + brief(assignment) + "\" is not KEY=VALUE"};
        const QString key = assignment.left(equals);
        if (const auto checked = checkSetting(key, assignment.mid(equals + 1)); !checked)
            return Fault{"--set", Translator("en").text(checked.error())};
        settings.insert(key, assignment.mid(equals + 1));
    }
    return {};
}

} // namespace

QString delivered(const QString &relative)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../" + relative);
}

QString defaultDatabase()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/till.sqlite";
}

void prepareFolder(const QString &database)
{
    if (database == inMemory())
        return;
    const QString folder = QFileInfo(database).absolutePath();
    // Where it cannot be made, the database says that it is missing.
    std::ignore = makePrivateFolder(folder);
    if (folder == QFileInfo(defaultDatabase()).absolutePath() && !QFileInfo(folder).isSymLink())
        QFile::setPermissions(folder,
                              QFile::permissions(folder)
                                  & (QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

QList<QCommandLineOption> setupOptions()
{
    return {
        {"db", "Keep receipts in FILE (:memory: for nowhere).", "FILE", defaultDatabase()},
        {"catalogue", "Take the articles from the CSV FILE.", "FILE",
         delivered("share/packagingcontrol/catalogue.csv")},
        {"plugin", "Load the plugin FILE.", "FILE",
         delivered(QStringLiteral(TILL_PLUGIN_DIR "/PackagingControl.so"))},
        {"no-plugin", "Work without a plugin."},
        {"config", "Read settings from the INI FILE.", "FILE"},
        {"set", "Set a setting, such as PackagingControl:allowSaleEmptyTara=false.", "KEY=VALUE"},
    };
}

QCommandLineOption languageOption()
{
    return {"lang",
            "Language of messages: " + Translator::languages().join(", ") + " (default: ru).",
            "LANGUAGE", "ru"};
}

Result<Setup> readSetup(const QCommandLineParser &parser)
{
    for (const QString name : {"db", "catalogue", "plugin", "config"}) {
        if (parser.isSet(name) && parser.value(name).isEmpty())
            return Fault{"--" + name, "no file is named"};
    }
    if (parser.isSet("no-plugin") && parser.isSet("plugin"))
        return Fault{"--no-plugin", "--plugin names one"};
    Setup setup{parser.value("db"),
                parser.value("catalogue"),
                parser.isSet("no-plugin") ? QString() : parser.value("plugin"),
                parser.value("config"),
                {}};
    if (const Result<> read = readSettings(parser.values("set"), setup.settings); !read)
        return read.error();
    return setup;
}

Result<QString> readLanguage(const QCommandLineParser &parser)
{
    const QString language = parser.value("lang");
    if (!Translator::isKnown(language))
        return Fault{"--lang", '"' + brief(language)
                                   + "\" is none of: " + Translator::languages().join(", ")};
    return language;
}

} // namespace till
