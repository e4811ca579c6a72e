#include "till/view/TextPage.h"

#include "till/view/DisplayText.h"

namespace till {

namespace {

//! What makes a terminal paint so.
QLatin1String codeOf(Paint paint)
{
    switch (paint) {
    case Paint::Plain:
        break;
    case Paint::Bold:
        return QLatin1String("\x1b[1m");
    case Paint::Dim:
        return QLatin1String("\x1b[2m");
    case Paint::Struck:
        return QLatin1String("\x1b[9m");
    case Paint::Red:
        return QLatin1String("\x1b[31m");
    case Paint::Green:
        return QLatin1String("\x1b[32m");
    case Paint::Yellow:
        return QLatin1String("\x1b[33m");
    case Paint::Cyan:
        return QLatin1String("\x1b[36m");
    }
    return {};
}

} // namespace

QList<Piece> separated(QList<Piece> pieces, const QString &separator)
{
    for (int i = 0; i + 1 < pieces.size(); ++i)
        pieces[i].text += separator;
    return pieces;
}

QString TextPage::painted(const QString &text, Paint paint) const
{
    if (!m_style.colour || paint == Paint::Plain)
        return text;
    return codeOf(paint) + text + QLatin1String("\x1b[0m");
}

void TextPage::write(const QString &line)
{
    m_text += line;
    m_text += QLatin1Char('\n');
}

void TextPage::writePieces(const QList<Piece> &pieces, int indent)
{
    const QString margin(indent, QLatin1Char(' '));
    QString line;
    int column = 0; // behind the line's last sign
    for (const Piece &piece : pieces) {
        const QString shown = elided(piece.text, m_width - indent);
        const int columns = displayWidth(shown);
        if (!line.isEmpty() && column + 1 + columns > m_width) {
            write(line);
            line.clear();
        }
        column = line.isEmpty() ? indent + columns : column + 1 + columns;
        line += (line.isEmpty() ? margin : QStringLiteral(" ")) + painted(shown, piece.paint);
    }
    write(line);
}

} // namespace till
