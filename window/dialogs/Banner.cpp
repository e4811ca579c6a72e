#include "window/dialogs/Banner.h"

#include "window/look/Paints.h"

#include <QtGui/QAccessible>

namespace till {

Banner::Banner(QWidget *parent)
    : QLabel(parent)
{
    constexpr int lifetime = 7000;
    setObjectName(QStringLiteral("banner"));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(Qt::AlignCenter);
    setMargin(8);
    setAutoFillBackground(true);
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.3);
    large.setBold(true);
    setFont(large);
    m_timer.setSingleShot(true);
    m_timer.setInterval(lifetime);
    connect(&m_timer, &QTimer::timeout, this, [this] { clear(); });
}

void Banner::tell(const Message &message, Tone tone)
{
    tell([message](const Translator &translator) { return translator.text(message); }, tone);
}

void Banner::tell(const Text &text, Tone tone)
{
    QPalette colours = palette();
    const bool warns = tone == Tone::Warning;
    colours.setColor(QPalette::Window, warns ? QColor(0xb0, 0x00, 0x20) : QColor(0x00, 0x4d, 0x33));
    colours.setColor(QPalette::WindowText, Qt::white);
    setPalette(colours);
    m_text = text;
    showText();
    m_timer.start();
    if (changed)
        changed(true);
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void Banner::translate(const Translator &translator)
{
    m_translator = translator;
    if (isTelling())
        showText();
}

void Banner::showText()
{
    setText(m_text(m_translator));
    setAccessibleName(text());
}

void Banner::clear()
{
    m_timer.stop();
    QLabel::clear();
    if (changed)
        changed(false);
}

void Banner::mousePressEvent(QMouseEvent *)
{
    clear();
}

} // namespace till
