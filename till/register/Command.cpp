#include "till/register/Command.h"

#include <QtCore/QStringList>

#include <algorithm>

namespace till {

namespace {

//! \a text as one word of a line: in quotes where it holds spaces, each quote in it three times.
QString word(const QString &text)
{
    const QString escaped = QString(text).replace(QLatin1String("\""), QLatin1String("\"\"\""));
    const bool hasSpace =
        std::any_of(text.cbegin(), text.cend(), [](QChar sign) { return sign.isSpace(); });
    return hasSpace ? '"' + escaped + '"' : escaped;
}

QString number(int posnum)
{
    return QString::number(posnum);
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
        return {"add", word(add.article), toText(add.count)};
    }
    QStringList operator()(const command::ChangeCount &change) const
    {
        return {"qty", number(change.posnum), toText(change.count)};
    }
    QStringList operator()(const command::Storno &storno) const
    {
        return {"storno", number(storno.posnum)};
    }
    QStringList operator()(const command::Split &split) const
    {
        QStringList words{"split", number(split.posnum)};
        for (const double part : split.parts)
            words.append(toText(part));
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
        return {"order", word(order.number)};
    }
    QStringList operator()(const command::AddSoftCheck &softCheck) const
    {
        return {"softcheck", word(softCheck.number)};
    }
    QStringList operator()(const command::Subtotal &) const { return {"subtotal"}; }
    QStringList operator()(const command::Pay &pay) const
    {
        return pay.tendered ? QStringList{"pay", toText(*pay.tendered)} : QStringList{"pay"};
    }
    QStringList operator()(const command::Cancel &) const { return {"cancel"}; }
};

} // namespace

QString toText(const Command &command)
{
    return std::visit(Words(), command).join(QLatin1Char(' '));
}

} // namespace till
