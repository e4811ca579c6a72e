#include "window/desk/DeedBar.h"

#include "window/look/Paints.h"

#include <QtCore/QEvent>
#include <QtGui/QShortcut>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QPushButton>

namespace till {

DeedBar::DeedBar(const Translator &translator, QWidget *parent)
    : QWidget(parent)
    , m_translator(translator)
{
    constexpr int columns = 4;
    auto *const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(3);
    int place = 0;
    for (const DeedRow &row : deedRows()) {
        auto *const button = new QPushButton(this);
        button->setObjectName(QLatin1String(row.name));
        button->setMinimumHeight(touchHeight);
        button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        button->setFocusPolicy(Qt::TabFocus);
        button->installEventFilter(this);
        m_buttons.insert(row.deed, {button, {}, {}});
        const bool isLast = row.deed == Deed::Pay;
        grid->addWidget(button, place / columns, place % columns, 1, isLast ? 2 : 1);
        ++place;
        const Deed deed = row.deed;
        connect(button, &QPushButton::clicked, this, [this, deed] { press(deed); });
        const auto *const shortcut = new QShortcut(row.key, this);
        connect(shortcut, &QShortcut::activated, this, [this, deed] { press(deed); });
    }
    for (int column = 0; column < columns; ++column)
        grid->setColumnStretch(column, 1);
    translate(translator);
}

void DeedBar::translate(const Translator &translator)
{
    m_translator = translator;
    for (const DeedRow &row : deedRows()) {
        Button &shown = m_buttons[row.deed];
        shown.reason = shown.whyNot.text(translator);
        describe(row);
    }
}

void DeedBar::describe(const DeedRow &row)
{
    const Button &shown = m_buttons[row.deed];
    const QString text = m_translator.text(row.text);
    const QString key = row.key.toString(QKeySequence::NativeText);
    shown.button->setText(text + u'\n' + key);
    constexpr int frame = 12; // of a button, about its text
    const int textWidth = shown.button->fontMetrics().horizontalAdvance(text);
    shown.button->setMinimumWidth(std::max(textWidth + frame, touchHeight));
    shown.button->setAccessibleName(text);
    shown.button->setAccessibleDescription(shown.reason);
    shown.button->setToolTip(shown.reason.isEmpty() ? text + QStringLiteral(" (") + key + u')'
                                                    : shown.reason);
}

void DeedBar::setReason(Deed deed, const Outcome &whyNot)
{
    Button &shown = m_buttons[deed];
    const QString reason = whyNot.text(m_translator);
    if (shown.reason == reason && shown.button->isEnabled() == reason.isEmpty())
        return;
    shown.whyNot = whyNot;
    shown.reason = reason;
    shown.button->setEnabled(reason.isEmpty());
    for (const DeedRow &row : deedRows()) {
        if (row.deed == deed)
            describe(row);
    }
}

void DeedBar::press(Deed deed)
{
    const Button &pressed = m_buttons[deed];
    if (!pressed.reason.isEmpty()) {
        if (refused)
            refused(pressed.whyNot);
    } else if (wanted) {
        wanted(deed);
    }
}

//! A disabled button is touched.
bool DeedBar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::MouseButtonPress)
        return QWidget::eventFilter(watched, event);
    for (auto shown = m_buttons.cbegin(); shown != m_buttons.cend(); ++shown) {
        if (shown->button == watched && !shown->button->isEnabled())
            press(shown.key());
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace till
