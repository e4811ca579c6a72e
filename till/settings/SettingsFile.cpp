#include "till/settings/SettingsFile.h"

#include "host/Config.h"
#include "till/language/Nearest.h"
#include "till/language/Translator.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QStringDecoder>

#include <algorithm>
#include <utility>

namespace till {

namespace {

bool isBoolean(const QString &value)
{
    static const QStringList words{"true", "yes", "on", "1", "false", "no", "off", "0"};
    return words.contains(value.toLower());
}

//! \a line without its comment and the space around it.
QString bare(const QString &line)
{
    static const QRegularExpression comment(QStringLiteral("(^|\\s)[;#].*"));
    return QString(line).remove(comment).trimmed();
}

QString unquoted(const QString &value)
{
    const bool isQuoted = value.size() > 1 && value.startsWith('"') && value.endsWith('"');
    return isQuoted ? value.mid(1, value.size() - 2).trimmed() : value;
}

//! Whether a known setting stands below a heading that says \a section.
Result<void, Message> checkSection(const QString &section)
{
    QStringList known = knownSettings();
    for (QString &setting : known)
        setting = setting.section(':', 0, 0);
    known.removeDuplicates();
    if (known.contains(section))
        return {};
    return told("till", "no section [%1]; there is [%2]")
        .with({brief(section), known.join("], [")});
}

using Settings = QList<std::pair<QString, QString>>;

//! Reads one line, under the heading of \a section.
Result<void, Message> readLine(const QString &line, QString &section, Settings &settings)
{
    if (line.isEmpty())
        return {};
    if (line.startsWith('[')) {
        if (!line.endsWith(']'))
            return told("till", "a section is not closed with \"]\"");
        section = line.mid(1, line.size() - 2).trimmed();
        return checkSection(section);
    }
    const qsizetype equals = line.indexOf('=');
    if (equals <= 0)
        return told("till", "neither [SECTION] nor KEY=VALUE");
    if (section.isEmpty())
        return told("till", "there is no [SECTION] above it");
    const QString key = section + ':' + line.left(equals).trimmed();
    settings.append({key, unquoted(line.mid(equals + 1).trimmed())});
    return checkSetting(key, settings.last().second);
}

//! The setting that is meant by \a key, which may lack the section; empty when none is near.
QString meantBy(const QString &key)
{
    const QStringList known = knownSettings();
    if (const QString whole = nearest(key, known); !whole.isEmpty())
        return whole;
    const auto isNear = [&key](const QString &setting) {
        return !nearest(key, {setting.section(':', 1)}).isEmpty();
    };
    const auto found = std::find_if(known.cbegin(), known.cend(), isNear);
    return found == known.cend() ? QString() : *found;
}

} // namespace

QStringList knownSettings()
{
    return {QStringLiteral("PackagingControl:allowSaleEmptyTara")};
}

Result<void, Message> checkSetting(const QString &key, const QString &value)
{
    if (knownSettings().contains(key)) {
        if (isBoolean(value.trimmed()))
            return {};
        return told("till", "%1: \"%2\" is neither true nor false").with({key, brief(value)});
    }
    const QString meant = meantBy(key);
    return meant.isEmpty()
               ? told("till", "no setting \"%1\"").with({brief(key)})
               : told("till", "no setting \"%1\"; did you mean '%2'?").with({brief(key), meant});
}

QStringList settingsInForce(const Config &config)
{
    QStringList settings = knownSettings();
    for (QString &setting : settings)
        setting += config.getBool(setting, true) ? "=true" : "=false";
    return settings;
}

Result<> readSettingsFile(const QString &path, Config &config)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Fault{path, file.errorString()};
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return Fault{path, file.errorString()};
    QStringDecoder decoder(QStringDecoder::Utf8); // takes a byte order mark
    const QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return Fault{path, QStringLiteral("not UTF-8 text")};

    QString section;
    Settings settings;
    const QStringList lines = text.split('\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (const auto read = readLine(bare(lines[i]), section, settings); !read)
            return Fault{QStringLiteral("%1:%2").arg(path).arg(i + 1),
                         Translator(QStringLiteral("en")).text(read.error())};
    }
    for (const auto &[key, value] : std::as_const(settings))
        config.set(key, value);
    return {};
}

} // namespace till
