#ifndef TILL_VIEW_TEXTPAGE_H
#define TILL_VIEW_TEXTPAGE_H

#include <QtCore/QList>
#include <QtCore/QString>

namespace till {

//! How texts are dressed up.
struct Style
{
    //! How many columns a line has where there is no terminal.
    static int columnsOfAPipe() { return 80; }

    //! True on a terminal: colours, and stornoed lines struck through. False in a pipe: not one
    //! escape character.
    bool colour = false;
    //! How many columns a line has; asked for each page, as a terminal's width changes.
    int (*columns)() = columnsOfAPipe;
};

//! What a text looks like on a terminal.
enum class Paint { Plain, Bold, Dim, Struck, Red, Green, Yellow, Cyan };

//! A part of a line that is not broken in two.
struct Piece
{
    QString text;
    Paint paint = Paint::Plain;
};

//! \a pieces with \a separator at the end of each but the last.
QList<Piece> separated(QList<Piece> pieces, const QString &separator);

//! Lines of text being written for a terminal or a pipe.
class TextPage
{
public:
    explicit TextPage(Style style)
        : m_style(style)
        , m_width(style.columns())
    {
    }

    //! Columns of a line.
    int width() const { return m_width; }

    //! \a text as \a paint looks in the page's style; as it stands when there is no colour.
    QString painted(const QString &text, Paint paint) const;

    //! Appends a line, however long.
    void write(const QString &line);

    //! Appends the pieces with spaces between them, in as many lines as they need, each \a indent
    //! columns from the left. A piece that is longer than a line is elided.
    void writePieces(const QList<Piece> &pieces, int indent);

    //! All lines, each with its line break.
    QString text() const { return m_text; }

private:
    Style m_style;
    int m_width;
    QString m_text;
};

} // namespace till

#endif // TILL_VIEW_TEXTPAGE_H
