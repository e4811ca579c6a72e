#ifndef TILL_LANGUAGE_TRANSLATOR_H
#define TILL_LANGUAGE_TRANSLATOR_H

#include "till/language/Message.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

QT_BEGIN_NAMESPACE
class QTranslator;
QT_END_NAMESPACE

namespace till {

//! The language in which a cashier reads messages. The texts are built in; no file is read.
class Translator
{
public:
    //! One of the `languages()`. An unknown language gives Russian.
    explicit Translator(const QString &language = QStringLiteral("ru"));

    //! The text of \a message in this language: found by its key, without one by its English text.
    //! Where the language has none, the message's own text as it stands.
    QString text(const tr::Tr &message) const;
    //! The same, with its values in it.
    QString text(const Message &message) const;

    //! Codes of the languages that ship: Russian, "ru", then the others by alphabet.
    static QStringList languages();
    //! True when \a language is one of `languages()`, written exactly so.
    static bool isKnown(const QString &language);

private:
    std::shared_ptr<const QTranslator> m_texts;
};

} // namespace till

#endif // TILL_LANGUAGE_TRANSLATOR_H
