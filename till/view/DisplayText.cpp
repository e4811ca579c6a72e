#include "till/view/DisplayText.h"

#include <QtCore/QList>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <array>

namespace till {

namespace {

struct Range
{
    char32_t first;
    char32_t last;
};

//! The blocks whose signs take two columns.
constexpr std::array wideBlocks{
    Range{0x1100, 0x115f},   Range{0x2e80, 0x303e},   Range{0x3041, 0x4dbf},
    Range{0x4e00, 0xa4cf},   Range{0xac00, 0xd7a3},   Range{0xf900, 0xfaff},
    Range{0xfe30, 0xfe6f},   Range{0xff00, 0xff60},   Range{0xffe0, 0xffe6},
    Range{0x1f300, 0x1f64f}, Range{0x1f900, 0x1f9ff}, Range{0x20000, 0x3fffd},
};

bool isWide(char32_t sign)
{
    return std::any_of(wideBlocks.begin(), wideBlocks.end(), [sign](const Range &block) {
        return block.first <= sign && sign <= block.last;
    });
}

bool isFormat(char32_t sign)
{
    return QChar::category(sign) == QChar::Other_Format;
}

bool isLineBreakOrControl(char32_t sign)
{
    const QChar::Category category = QChar::category(sign);
    return category == QChar::Other_Control || category == QChar::Separator_Line
           || category == QChar::Separator_Paragraph;
}

int widthOf(char32_t sign)
{
    const QChar::Category category = QChar::category(sign);
    if (category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing || isFormat(sign))
        return 0;
    return isWide(sign) ? 2 : 1;
}

QString spaces(int count)
{
    return QString(std::max(count, 0), QLatin1Char(' '));
}

} // namespace

int displayWidth(const QString &text)
{
    const QList<uint> signs = text.toUcs4();
    int width = 0;
    for (const uint sign : signs)
        width += widthOf(sign);
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
    const QList<uint> signs = text.toUcs4();
    QString kept;
    int left = width - 1; // the ellipsis takes one
    for (const char32_t sign : signs) {
        left -= widthOf(sign);
        if (left < 0)
            break;
        kept += QChar::fromUcs4(sign);
    }
    return kept + QStringLiteral("…");
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
