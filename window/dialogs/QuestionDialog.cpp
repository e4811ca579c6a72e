#include "window/dialogs/QuestionDialog.h"

#include "till/view/DisplayText.h"
#include "window/look/Paints.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>

namespace till {

namespace {

//! \a text as a widget shows it: its line breaks stay, other control characters do not.
QString shown(const QString &text)
{
    QStringList lines = text.split(u'\n');
    for (QString &line : lines)
        line = printable(line);
    return lines.join(u'\n');
}

QLabel *makeText(const QString &text, const char *name, QWidget *parent)
{
    auto *const label = new QLabel(text, parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QLabel *makeIcon(QWidget *parent)
{
    auto *const icon = new QLabel(parent);
    const QStyle &style = *parent->style();
    const int size = style.pixelMetric(QStyle::PM_MessageBoxIconSize);
    icon->setPixmap(style.standardIcon(QStyle::SP_MessageBoxQuestion).pixmap(size));
    return icon;
}

QPushButton *makeChoice(const QString &text, const char *name, QWidget *parent)
{
    // An ampersand in a choice is no mark of a key.
    auto *const button =
        new QPushButton(printable(text).replace(u'&', QLatin1String("&&")), parent);
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(text);
    button->setMinimumSize(3 * touchHeight, touchHeight);
    button->setAutoDefault(true);
    return button;
}

} // namespace

QuestionDialog::QuestionDialog(const Translator &translator, const Question &question,
                               const Message &about, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("question"));
    setModal(true);
    setWindowTitle(translator.text(told("till", "Question")));
    auto *const text = makeText(shown(translator.text(question.text)), "text", this);
    text->setMinimumWidth(fontMetrics().averageCharWidth() * 44);
    auto *const subject = makeText(translator.text(about), "about", this);
    subject->setVisible(!subject->text().isEmpty());
    setAccessibleName(subject->text().isEmpty() ? text->text()
                                                : subject->text() + u'\n' + text->text());
    auto *const confirm = makeChoice(translator.text(question.confirm), "confirm", this);
    auto *const cancel = makeChoice(translator.text(question.cancel), "cancel", this);
    connect(confirm, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto *const words = new QHBoxLayout;
    words->addWidget(makeIcon(this), 0, Qt::AlignTop);
    auto *const lines = new QVBoxLayout;
    lines->addWidget(subject);
    lines->addWidget(text);
    words->addLayout(lines, 1);
    auto *const buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(confirm);
    buttons->addWidget(cancel);
    auto *const all = new QVBoxLayout(this);
    all->setSpacing(16);
    all->addLayout(words);
    all->addLayout(buttons);
    cancel->setDefault(true);
    cancel->setFocus();
}

} // namespace till
