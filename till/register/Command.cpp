#include "till/register/Command.h"

#include <QtCore/QLocale>
#include <QtCore/QStringList>

#include <algorithm>

namespace till {

namespace {

QString number(int posnum)
{
    return QString::number(posnum);
}

//! \a count in as many digits as it needs: what cannot be typed is not told as something else.
QString exactly(double count)
{
    const QString text = toText(count);
    return parseQuantity(text) == count
               ? text
               : QString::number(count, 'f', QLocale::FloatingPointShortest);
}

//! The words of each command, its name first.
struct Words
{
    QStringList operator()(const command::Open &open) const
    {
        return {"open", open.type == Document::Return ? "return" : "sale"};
    }
    QStringList operator()(const command::Add &add) const
    {
        return {"add", asWord(add.article), exactly(add.count)};
    }
    QStringList operator()(const command::ChangeCount &change) const
    {
        return {"qty", number(change.posnum), exactly(change.count)};
    }
    QStringList operator()(const command::Storno &storno) const
    {
        return {"storno", number(storno.posnum)};
    }
    QStringList operator()(const command::Split &split) const
    {
        QStringList words{"split", number(split.posnum)};
        for (const double part : split.parts)
            words.append(exactly(part));
        return words;
    }
    QStringList operator()(const command::Unite &unite) const
    {
        QStringList words{"unite"};
        for (const int posnum : unite.posnums)
            words.append(number(posnum));
        return words;
    }
    QStringList operator()(const command::AttachOrder &order) const
    {
        return {"order", asWord(order.number)};
    }
    QStringList operator()(const command::AddSoftCheck &softCheck) const
    {
        return {"softcheck", asWord(softCheck.number)};
    }
    QStringList operator()(const command::Subtotal &) const { return {"subtotal"}; }
    QStringList operator()(const command::Pay &pay) const
    {
        return pay.tendered ? QStringList{"pay", toText(*pay.tendered)} : QStringList{"pay"};
    }
    QStringList operator()(const command::Cancel &) const { return {"cancel"}; }
};

} // namespace

QString asWord(const QString &text)
{
    const QString escaped = QString(text).replace(QLatin1String("\""), QLatin1String("\"\"\""));
    const bool hasSpace =
        std::any_of(text.cbegin(), text.cend(), [](QChar sign) { return sign.isSpace(); });
    return hasSpace ? '"' + escaped + '"' : escaped;
}

QString toText(const Command &command)
{
    return std::visit(Words(), command).join(QLatin1Char(' '));
}

} // namespace till
