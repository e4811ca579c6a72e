#include "window/desk/TopStrip.h"

#include "till/language/TillMessages.h"
#include "till/view/ReceiptText.h"
#include "window/look/Paints.h"

#include <QtGui/QPainter>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStackedLayout>
#include <QtWidgets/QToolButton>

namespace till {

namespace {

//! A line that ends in an ellipsis where there is no room for all of it.
class ElidedLabel final : public QLabel
{
protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(contentsRect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width()));
    }
};

} // namespace

TopStrip::TopStrip(QWidget *parent)
    : QWidget(parent)
    , m_pages(*new QStackedLayout(this))
    , m_header(*new ElidedLabel)
    , m_work(*new QLabel)
    , m_control(*new QLabel)
    , m_language(*new QToolButton)
    , m_menu(*new QToolButton)
    , m_banner(*new Banner)
{
    m_header.setObjectName(QStringLiteral("header"));
    m_header.setTextFormat(Qt::PlainText);
    m_header.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_work.setObjectName(QStringLiteral("work"));
    m_control.setObjectName(QStringLiteral("control"));
    m_control.setMargin(6);
    m_control.setAutoFillBackground(true);
    m_language.setObjectName(QStringLiteral("language"));
    m_menu.setObjectName(QStringLiteral("menu"));
    m_menu.setPopupMode(QToolButton::InstantPopup);
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.3);
    m_header.setFont(large);
    auto *const status = new QWidget;
    auto *const row = new QHBoxLayout(status);
    row->setContentsMargins(4, 0, 0, 0);
    row->addWidget(&m_header, 1);
    row->addWidget(&m_work);
    row->addWidget(&m_control, 0, Qt::AlignVCenter);
    for (QToolButton *const button : {&m_language, &m_menu}) {
        button->setMinimumSize(touchHeight, touchHeight);
        row->addWidget(button);
    }
    m_pages.addWidget(status);
    m_pages.addWidget(&m_banner);
    m_banner.changed = [this](bool isTelling) { m_pages.setCurrentIndex(isTelling ? 1 : 0); };
    // Two lines of a message.
    setFixedHeight(std::max(2 * m_banner.fontMetrics().height() + 16, touchHeight + 4));
}

void TopStrip::show(const ShownReceipt *receipt, TaraControl control, const Translator &translator)
{
    QStringList words;
    if (receipt) {
        const ReceiptWording wording(translator, receipt->receipt(), receipt->index());
        const QList<Piece> pieces = wording.header(TaraControl::Active); // that has its own place
        for (const Piece &piece : pieces)
            words.append(piece.text);
    } else {
        words.append(translator.text(messages::tillNoReceipt()));
    }
    m_header.setText(words.join(QStringLiteral(" · ")));
    m_header.setToolTip(m_header.text());
    showControl(control, receipt != nullptr, translator);
}

void TopStrip::showControl(TaraControl control, bool isOfReceipt, const Translator &translator)
{
    QPalette colours = m_control.palette();
    const auto dress = [&](const QString &sign, const QString &text, const QColor &ground,
                           const QColor &ink) {
        m_control.setText(sign + u' ' + text);
        m_control.setAccessibleName(text);
        colours.setColor(QPalette::Window, ground);
        colours.setColor(QPalette::WindowText, ink);
    };
    switch (control) {
    case TaraControl::Active:
        dress(QStringLiteral("●"), translator.text(told("till", "tara is controlled")),
              QColor(0x00, 0x4d, 0x33), Qt::white);
        break;
    case TaraControl::Suspended:
        if (!isOfReceipt) { // there is nothing to let go of
            dress(QStringLiteral("○"), translator.text(told("till", "tara control is ready")),
                  QColor(0xc8, 0xc8, 0xc8), Qt::black);
            break;
        }
        dress(QStringLiteral("◐"), translator.text(messages::tillTaraSuspended()),
              QColor(0xf0, 0xe4, 0x42), Qt::black);
        break;
    case TaraControl::Absent:
        dress(QStringLiteral("○"), translator.text(messages::tillTaraAbsent()),
              QColor(0xc8, 0xc8, 0xc8), Qt::black);
        break;
    }
    m_control.setPalette(colours);
}

QString TopStrip::work() const
{
    return m_work.text();
}

void TopStrip::showWork(const QString &work)
{
    m_work.setText(work);
    m_work.setAccessibleName(work);
    if (!m_work.isVisible())
        return;
    QWidget &status = *m_work.parentWidget();
    status.layout()->activate(); // or it would be drawn where there was room for nothing
    status.repaint();
}

} // namespace till
