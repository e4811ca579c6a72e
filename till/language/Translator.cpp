#include "till/language/Translator.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QTranslator>

namespace till {

namespace {

//! The texts of each language, one file each.
QDir languageFiles()
{
    return QDir(QStringLiteral(":/till/language"), QStringLiteral("*.qm"), QDir::Name, QDir::Files);
}

QString russian()
{
    return QStringLiteral("ru");
}

QStringList codesOfFiles()
{
    QStringList codes{russian()};
    const QStringList files = languageFiles().entryList();
    for (const QString &file : files) {
        if (const QString code = QFileInfo(file).completeBaseName(); code != russian())
            codes.append(code);
    }
    return codes;
}

std::shared_ptr<const QTranslator> textsOf(const QString &language)
{
    static QHash<QString, std::shared_ptr<const QTranslator>> read;
    auto &texts = read[language];
    if (!texts) {
        const auto file = std::make_shared<QTranslator>();
        [[maybe_unused]] const bool isRead =
            file->load(languageFiles().filePath(language + QStringLiteral(".qm")));
        Q_ASSERT(isRead);
        texts = file;
    }
    return texts;
}

} // namespace

Translator::Translator(const QString &language)
    : m_texts(textsOf(isKnown(language) ? language : russian()))
{
}

QString Translator::text(const tr::Tr &message) const
{
    const bool hasKey = !message.key().isEmpty();
    const QString text = m_texts->translate(hasKey ? "messages" : "till",
                                            (hasKey ? message.key() : message.text()).toUtf8());
    return text.isEmpty() ? message.text() : text;
}

QString Translator::text(const Message &message) const
{
    static const QRegularExpression place(QStringLiteral("%(Q|L?([1-9]))"));
    const QString pattern = text(message.pattern);
    QString filled;
    qsizetype read = 0;
    for (auto places = place.globalMatch(pattern); places.hasNext();) {
        const QRegularExpressionMatch found = places.next();
        const QString value = message.values.value(found.capturedView(2).toInt() - 1);
        filled += pattern.mid(read, found.capturedStart() - read);
        if (found.capturedView(1) == QLatin1String("Q"))
            filled += text(message.quoted).replace(u'\n', u' ');
        else
            filled += found.capturedLength(1) == 1 ? value : text(tr::Tr(QString(), value));
        read = found.capturedEnd();
    }
    return filled + pattern.mid(read);
}

QStringList Translator::languages()
{
    static const QStringList codes = codesOfFiles();
    return codes;
}

bool Translator::isKnown(const QString &language)
{
    return languages().contains(language);
}

} // namespace till
