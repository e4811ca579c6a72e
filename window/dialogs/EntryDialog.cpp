#include "window/dialogs/EntryDialog.h"

#include "till/language/TillMessages.h"
#include "window/look/Paints.h"
#include "window/look/ScrolledPage.h"

#include <QtGui/QScreen>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <utility>

namespace till {

EntryDialog::EntryDialog(const Translator &translator, Wanted wanted, QWidget *parent)
    : QDialog(parent)
    , m_wanted(std::move(wanted))
    , m_field(*new QLineEdit(m_wanted.proposal, this))
    , m_fault(*new QLabel(this))
    , m_confirm(*new QPushButton(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(m_wanted.name);
    layOut(translator);
    connect(&m_field, &QLineEdit::textChanged, this, [this] { check(); });
    connect(&m_confirm, &QPushButton::clicked, this, [this] { take(); });
    m_field.selectAll();
    m_field.setFocus();
    check();
}

void EntryDialog::layOut(const Translator &translator)
{
    auto *const title = new QLabel(m_wanted.title, this);
    title->setBuddy(&m_field);
    m_field.setObjectName(QStringLiteral("entry"));
    m_field.setAccessibleName(m_wanted.title);
    m_field.setMinimumHeight(touchHeight);
    auto *const hint = new QLabel(m_wanted.hint, this);
    hint->setObjectName(QStringLiteral("hint"));
    hint->setWordWrap(true);
    hint->setVisible(!m_wanted.hint.isEmpty());
    m_fault.setObjectName(QStringLiteral("fault"));
    m_fault.setWordWrap(true);
    QPalette warning = m_fault.palette();
    warning.setColor(QPalette::WindowText, warningColour(warning));
    m_fault.setPalette(warning);
    m_fault.setMinimumHeight(m_fault.fontMetrics().height() * 2);
    auto *const buttons = makeButtons(translator);
    auto *const all = new QVBoxLayout(this);
    for (QWidget *const widget : std::initializer_list<QWidget *>{title, &m_field, hint, &m_fault})
        all->addWidget(widget);
    constexpr QSize leastOfPad(3 * touchHeight, touchHeight);
    all->addWidget(new ScrolledPage(makePad(translator), leastOfPad), 1);
    all->addLayout(buttons);
    // As high as its wrapped texts make it, within the screen and the frame about it.
    constexpr QSize frame(16, 40);
    const int width = all->sizeHint().width();
    const int height = std::max(all->totalHeightForWidth(width), all->sizeHint().height());
    resize(QSize(width, height).boundedTo(screen()->availableSize() - frame));
}

QLayout *EntryDialog::makeButtons(const Translator &translator)
{
    m_confirm.setObjectName(QStringLiteral("confirm"));
    m_confirm.setText(translator.text(told("till", "Enter")));
    m_confirm.setDefault(true);
    auto *const cancel = new QPushButton(translator.text(told("till", "Back")), this);
    cancel->setObjectName(QStringLiteral("back"));
    cancel->setAutoDefault(false);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto *const buttons = new QHBoxLayout;
    for (QPushButton *const button : {&m_confirm, cancel}) {
        button->setMinimumHeight(touchHeight);
        buttons->addWidget(button);
    }
    return buttons;
}

QPushButton *EntryDialog::makeKey(const QString &sign, const QString &name,
                                  std::function<void()> press)
{
    auto *const key = new QPushButton(sign, this);
    key->setObjectName(QStringLiteral("key") + sign);
    key->setAccessibleName(name);
    key->setMinimumSize(touchHeight, touchHeight);
    key->setAutoDefault(false);
    key->setFocusPolicy(Qt::NoFocus); // what is typed goes into the field all the time
    connect(key, &QPushButton::clicked, this, std::move(press));
    return key;
}

QWidget *EntryDialog::makePad(const Translator &translator)
{
    constexpr int columns = 3;
    auto *const pad = new QWidget(this);
    auto *const grid = new QGridLayout(pad);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(4);
    int place = 0;
    const auto add = [&](QPushButton *key) {
        grid->addWidget(key, place / columns, place % columns);
        ++place;
    };
    const QString signs = QStringLiteral("7894561230") + m_wanted.signs;
    for (const QChar sign : signs)
        add(makeKey(sign, sign, [this, sign] { m_field.insert(sign); }));
    add(makeKey(QStringLiteral("⌫"), translator.text(told("till", "Delete the last sign")),
                [this] { m_field.backspace(); }));
    return pad;
}

void EntryDialog::check()
{
    const QString text = m_field.text().trimmed();
    const auto checked = text.isEmpty() ? Result<void, QString>() : m_wanted.check(text);
    const QString fault = checked ? QString() : checked.error();
    m_fault.setText(fault);
    m_confirm.setEnabled(!text.isEmpty() && checked);
    m_confirm.setToolTip(fault);
}

void EntryDialog::take()
{
    const QString text = m_field.text().trimmed();
    accept();
    m_wanted.taken(text);
}

} // namespace till
