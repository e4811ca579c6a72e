#ifndef TILL_LANGUAGE_TRANSLATOR_H
#define TILL_LANGUAGE_TRANSLATOR_H

#include "till/language/Message.h"

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace till {

//! The language in which a cashier reads messages. The texts are built in; no file is read.
class Translator
{
public:
    //! Russian, or one of the other `languages()`. An unknown language gives Russian.
    explicit Translator(const QString &language = QStringLiteral("ru"));

    //! The text of \a message in this language. In Russian, and where the language has no text
    //! under the message's key, the message's own text as it stands.
    QString text(const tr::Tr &message) const;
    //! The same, with its values in it.
    QString text(const Message &message) const;

    //! Codes of the languages that ship: Russian, "ru", then the others by alphabet.
    static QStringList languages();
    //! True when \a language is one of `languages()`, written exactly so.
    static bool isKnown(const QString &language);

private:
    QHash<QString, QString> m_texts; //!< by message key; none in Russian
};

} // namespace till

#endif // TILL_LANGUAGE_TRANSLATOR_H
