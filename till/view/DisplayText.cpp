#include "till/view/DisplayText.h"

#include <QtCore/QList>
#include <QtCore/QRegularExpression>

#include <algorithm>

#include <utf8proc.h>

namespace till {

namespace {

//! Whether \a sign is seen only by what it does to others; but for those that join signs to one.
bool isFormat(char32_t sign)
{
    constexpr char32_t joiner = 0x200d;
    constexpr char32_t nonJoiner = 0x200c;
    return QChar::category(sign) == QChar::Other_Format && sign != joiner && sign != nonJoiner;
}

bool isLineBreakOrControl(char32_t sign)
{
    const QChar::Category category = QChar::category(sign);
    return category == QChar::Other_Control || category == QChar::Separator_Line
           || category == QChar::Separator_Paragraph;
}

//! What a person takes for one sign.
struct Cluster
{
    QString text;
    int width = 0; //!< in columns
};

QList<Cluster> clustersOf(const QString &text)
{
    constexpr char32_t pictureFollows = 0xfe0f; // the sign before it is shown as an emoji
    QList<Cluster> clusters;
    const QList<uint> signs = text.toUcs4();
    utf8proc_int32_t state = 0;
    utf8proc_int32_t before = 0;
    for (const uint code : signs) {
        const auto sign = static_cast<utf8proc_int32_t>(code);
        if (clusters.isEmpty() || utf8proc_grapheme_break_stateful(before, sign, &state))
            clusters.append(Cluster());
        Cluster &cluster = clusters.last();
        cluster.text += QChar::fromUcs4(code);
        // Signs that are joined to one picture take no more columns than one.
        cluster.width = code == pictureFollows && cluster.width > 0
                            ? 2
                            : std::min(2, cluster.width + utf8proc_charwidth(sign));
        before = sign;
    }
    return clusters;
}

QString spaces(int count)
{
    return QString(std::max(count, 0), QLatin1Char(' '));
}

int widthWithoutCodes(QString text)
{
    static const QRegularExpression code(QStringLiteral("\\e\\[[0-9]*m"));
    return displayWidth(text.remove(code));
}

QString wrappedLine(const QString &line, int columns)
{
    if (widthWithoutCodes(line) <= columns)
        return line;
    static const QRegularExpression beginning(QStringLiteral("^(?:[!?>] )? *"));
    const QString margin = beginning.match(line).captured();
    const QStringList words = line.mid(margin.size()).split(QLatin1Char(' '));
    QStringList lines{margin + words.constFirst()};
    for (const QString &word : words.mid(1)) {
        if (widthWithoutCodes(lines.constLast() + QLatin1Char(' ') + word) <= columns)
            lines.last() += QLatin1Char(' ') + word;
        else if (!word.isEmpty())
            lines.append(spaces(displayWidth(margin)) + word);
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace

int displayWidth(const QString &text)
{
    const QList<Cluster> clusters = clustersOf(text);
    int width = 0;
    for (const Cluster &cluster : clusters)
        width += cluster.width;
    return width;
}

QString printable(const QString &text)
{
    const QList<uint> signs = text.toUcs4();
    QString kept;
    for (const char32_t sign : signs) {
        if (isLineBreakOrControl(sign))
            kept += QLatin1Char(' ');
        else if (!isFormat(sign))
            kept += QChar::fromUcs4(sign);
    }
    return kept;
}

QString forTerminal(const QString &text, bool ownColours)
{
    static const QString steering = QStringLiteral(
        "(?!\\n)[\\p{Cc}\\p{Zl}\\p{Zp}\\x{200e}\\x{200f}\\x{202a}-\\x{202e}\\x{2066}-\\x{2069}]");
    static const QRegularExpression any(steering);
    static const QRegularExpression foreign(
        QStringLiteral("\\e\\[(?:[0129]|3[1236])m(*SKIP)(*FAIL)|") + steering);
    return QString(text).replace(ownColours ? foreign : any, QStringLiteral(" "));
}

QString elided(const QString &text, int width)
{
    if (displayWidth(text) <= width)
        return text;
    const QList<Cluster> clusters = clustersOf(text);
    QString kept;
    int left = width - 1; // the ellipsis takes one
    for (const Cluster &cluster : clusters) {
        left -= cluster.width;
        if (left < 0)
            break;
        kept += cluster.text;
    }
    return kept + QStringLiteral("…");
}

QString wrapped(const QString &text, int columns)
{
    QStringList lines = text.split(QLatin1Char('\n'));
    for (QString &line : lines)
        line = wrappedLine(line, columns);
    return lines.join(QLatin1Char('\n'));
}

QString leftAligned(const QString &text, int width)
{
    return text + spaces(width - displayWidth(text));
}

QString rightAligned(const QString &text, int width)
{
    return spaces(width - displayWidth(text)) + text;
}

} // namespace till
