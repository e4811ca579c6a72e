#include "window/dialogs/FaultPage.h"

#include "window/look/Paints.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace till {

FaultPage::FaultPage(const Translator &translator, QWidget *parent)
    : QWidget(parent)
    , m_translator(translator)
    , m_title(*new QLabel(this))
    , m_placeCaption(*new QLabel(this))
    , m_place(*new QLabel(this))
    , m_reasonCaption(*new QLabel(this))
    , m_reason(*new QLabel(this))
    , m_remedyCaption(*new QLabel(this))
    , m_remedy(*new QLabel(this))
    , m_goOn(*new QPushButton(this))
{
    setObjectName(QStringLiteral("faultPage"));
    m_place.setObjectName(QStringLiteral("place"));
    m_reason.setObjectName(QStringLiteral("reason"));
    m_remedy.setObjectName(QStringLiteral("remedy"));
    m_goOn.setObjectName(QStringLiteral("goOn"));
    m_goOn.setAutoDefault(true);
    setFocusProxy(&m_goOn);
    layOut();
    connect(&m_goOn, &QPushButton::clicked, this, [this] {
        if (goOn)
            goOn();
    });
}

void FaultPage::layOut()
{
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    m_title.setFont(large);
    QFont bold = font();
    bold.setBold(true);
    auto *const all = new QVBoxLayout(this);
    all->setContentsMargins(40, 20, 40, 20);
    all->addStretch();
    for (QLabel *const label : {&m_title, &m_reasonCaption, &m_reason, &m_placeCaption, &m_place,
                                &m_remedyCaption, &m_remedy}) {
        label->setWordWrap(true);
        label->setTextFormat(Qt::PlainText);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        all->addWidget(label);
    }
    for (QLabel *const caption : {&m_placeCaption, &m_reasonCaption, &m_remedyCaption})
        caption->setFont(bold);
    m_goOn.setMinimumHeight(touchHeight);
    all->addSpacing(16);
    all->addWidget(&m_goOn, 0, Qt::AlignLeft);
    all->addStretch();
}

void FaultPage::tellStart(const Fault &fault)
{
    m_outcome.reset();
    m_fault = fault;
    tell();
}

void FaultPage::tellCommand(const Outcome &outcome)
{
    m_outcome = outcome;
    tell();
}

void FaultPage::tell()
{
    fill();
    m_goOn.setFocus();
}

void FaultPage::translate(const Translator &translator)
{
    m_translator = translator;
    fill();
}

void FaultPage::fill()
{
    const auto say = [this](const Message &message) { return m_translator.text(message); };
    const Fault fault =
        m_outcome ? Fault{{},
                          m_outcome->text(m_translator),
                          say(told("till", "See to what is named, room on the disk say, and do the "
                                           "command again"))}
                  : m_fault;
    m_title.setText(!m_outcome ? say(told("till", "The till could not be switched on"))
                               : say(told("till", "The command came to nothing; the receipt is as "
                                                  "it was before")));
    setPart(m_reasonCaption, m_reason, told("till", "What is wrong"), fault.reason);
    setPart(m_placeCaption, m_place, told("till", "Where"), fault.place);
    setPart(m_remedyCaption, m_remedy, told("till", "What to do"), fault.remedy);
    m_goOn.setText(!m_outcome ? say(told("till", "Try again"))
                              : say(told("till", "Back to the receipt")));
    setAccessibleName(m_title.text());
    setAccessibleDescription(fault.text());
}

void FaultPage::setPart(QLabel &caption, QLabel &text, const Message &title, const QString &words)
{
    caption.setText(m_translator.text(title));
    text.setText(words);
    caption.setVisible(!words.isEmpty());
    text.setVisible(!words.isEmpty());
}

} // namespace till
