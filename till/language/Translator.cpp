#include "till/language/Translator.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSettings>

namespace till {

namespace {

//! The texts of the languages other than Russian, one file each.
QDir languageFiles()
{
    return QDir(QStringLiteral(":/till/language"), QStringLiteral("*.ini"), QDir::Name,
                QDir::Files);
}

QHash<QString, QString> readTexts(const QString &path)
{
    const QSettings file(path, QSettings::IniFormat);
    const QStringList keys = file.allKeys();
    QHash<QString, QString> texts;
    for (const QString &key : keys)
        texts.insert(key, file.value(key).toString());
    return texts;
}

QString russian()
{
    return QStringLiteral("ru");
}

} // namespace

Translator::Translator(const QString &language)
{
    if (language != russian() && isKnown(language))
        m_texts = readTexts(languageFiles().filePath(language + QStringLiteral(".ini")));
}

QString Translator::text(const tr::Tr &message) const
{
    return m_texts.value(message.key(), message.text());
}

QString Translator::text(const Message &message) const
{
    QString filled = text(message.pattern);
    for (const QString &value : message.values)
        filled = filled.arg(value);
    return filled;
}

QStringList Translator::languages()
{
    QStringList languages{russian()};
    const QStringList files = languageFiles().entryList();
    for (const QString &file : files)
        languages.append(QFileInfo(file).completeBaseName());
    return languages;
}

bool Translator::isKnown(const QString &language)
{
    return languages().contains(language);
}

} // namespace till
