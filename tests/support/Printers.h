#ifndef TESTS_SUPPORT_PRINTERS_H
#define TESTS_SUPPORT_PRINTERS_H

#include <QtCore/QDebug>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <ostream>

// How failed comparisons show Qt's types.

QT_BEGIN_NAMESPACE

inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QStringList &texts, std::ostream *out)
{
    *out << '[';
    for (const QString &text : texts)
        *out << "\n    " << text.toStdString();
    *out << ']';
}

inline void PrintTo(const QVariant &value, std::ostream *out)
{
    QString text;
    QDebug(&text) << value;
    *out << text.toStdString();
}

QT_END_NAMESPACE

#endif // TESTS_SUPPORT_PRINTERS_H
