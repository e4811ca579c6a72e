#include "window/desk/TillWindow.h"

#include "till/language/TillMessages.h"
#include "window/articles/ArticlePanel.h"
#include "window/course/CourseDock.h"
#include "window/desk/DeedEntry.h"
#include "window/dialogs/FaultPage.h"
#include "window/receipt/ReceiptTable.h"
#include "window/scripts/ScriptsDock.h"
#include "window/shelf/Shelf.h"

#include <QtGui/QCloseEvent>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QStackedWidget>

namespace till {

namespace {

//! While it lives the window shows that the till is at work.
class AtWork
{
public:
    AtWork(TopStrip &strip, const QString &text)
        : m_strip(strip)
    {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        m_strip.showWork(text);
    }
    ~AtWork()
    {
        m_strip.showWork({});
        QGuiApplication::restoreOverrideCursor();
    }
    Q_DISABLE_COPY_MOVE(AtWork)

private:
    TopStrip &m_strip;
};

} // namespace

TillWindow::TillWindow(CashDesk &desk, Notes &notes, const QString &language)
    : m_desk(desk)
    , m_translator(language)
    , m_languageCode(language)
    , m_strip(*new TopStrip)
    , m_pages(*new QStackedWidget)
    , m_fault(*new FaultPage(m_translator))
    , m_table(*new ReceiptTable(m_translator))
    , m_total(*new QLabel)
    , m_paidLabel(*new QLabel)
    , m_deeds(*new DeedBar(m_translator))
    , m_articles(*new ArticlePanel(m_translator))
    , m_shelf(*new Shelf(m_translator))
    , m_course(*new CourseDock(notes, m_translator))
    , m_scripts(*new ScriptsDock(desk, notes, m_translator))
    , m_typing(*this)
    , m_front(*this, m_strip, m_translator)
    , m_installed(desk.front(), m_front)
    , m_receiptSeen(desk.onReceiptChanged([this] { showReceipt(); }))
    , m_outcomesHeard(notes.subscribe([this](const QJsonObject &note) { hear(note); }))
{
    m_table.setObjectName(QStringLiteral("receipt"));
    m_shelf.setObjectName(QStringLiteral("shelf"));
    m_total.setObjectName(QStringLiteral("total"));
    m_paidLabel.setObjectName(QStringLiteral("paid"));
    m_deedsSoon.setSingleShot(true);
    connect(&m_deedsSoon, &QTimer::timeout, this, &TillWindow::showDeeds);
    layOut();
    addDocks();
    connectParts();
    addShortcuts();
    translate();
}

TillWindow::~TillWindow() = default;

bool TillWindow::isAtRegister() const
{
    return m_pages.currentIndex() == 0;
}

QSet<int> TillWindow::selectedGoods() const
{
    QSet<int> goods;
    const QList<int> posnums = m_table.selectedPositions();
    for (const int posnum : posnums) {
        if (m_table.receipt().shown()->goodsOrdinal(posnum))
            goods.insert(posnum);
    }
    return goods;
}

void TillWindow::setLanguage(const QString &language)
{
    m_languageCode = language;
    m_translator = Translator(language);
    translate();
}

void TillWindow::switchOn()
{
    if (m_desk.isOn() || m_desk.isBusy())
        return;
    if (const Result<> started = m_desk.start(); !started) {
        m_fault.tellStart(started.error());
        m_pages.setCurrentIndex(1);
        return;
    }
    m_articles.show(m_desk.catalogue());
    m_pages.setCurrentIndex(0);
    m_articles.focusCode();
    showReceipt();
    showDeeds();
}

void TillWindow::showReceipt()
{
    const auto shown = m_desk.isOn() ? ShownReceipt::of(m_desk.cashRegister()) : nullptr;
    m_table.show(shown);
    m_shelf.show(shown);
    m_strip.show(shown.get(),
                 m_desk.isOn() ? m_desk.cashRegister().taraControl() : TaraControl::Absent,
                 m_translator);
    const Kopecks total = shown ? shown->receipt().total() : 0;
    m_total.setText(m_translator.text(messages::tillTotal()) + QStringLiteral("  ")
                    + toText(total));
    if (!shown || shown->receipt().state() != ReceiptState::Closed)
        m_paid = {};
    m_paidLabel.setText(m_paid == Message() ? QString() : m_translator.text(m_paid));
    m_paidLabel.setToolTip(m_paidLabel.text());
}

void TillWindow::showDeeds()
{
    const QList<int> selected = m_table.selectedPositions();
    for (const DeedRow &row : deedRows()) {
        const Outcome outcome =
            m_desk.isOn() ? whyNot(row.deed, m_desk.cashRegister(), selected) : Outcome::busy();
        m_deeds.setReason(row.deed, outcome);
    }
}

void TillWindow::hear(const QJsonObject &note)
{
    const QString kind = note.value(QLatin1String("kind")).toString();
    if (kind == QLatin1String("message"))
        m_hasShownMessage = true;
    if (kind == QLatin1String("outcome"))
        showDeedsSoon();
}

void TillWindow::showDeedsSoon()
{
    if (!m_deedsSoon.isActive()) // begun anew at each line of a script it would never end
        m_deedsSoon.start();
}

void TillWindow::whileAtWork(const std::function<void()> &work)
{
    if (m_desk.isBusy())
        return work();
    const AtWork atWork(m_strip, m_translator.text(told("till", "at work, please wait")));
    work();
}

Outcome TillWindow::carryOut(const Command &command)
{
    if (!m_desk.isOn() || m_desk.isBusy()) {
        tell(Outcome::busy(), Banner::Tone::Notice);
        return Outcome::busy();
    }
    m_hasShownMessage = false;
    const auto receipt = m_desk.cashRegister().receipt();
    m_front.setAbout(receipt ? aboutOf(command, *receipt) : Message());
    banner().clear();
    Outcome outcome;
    whileAtWork([&] { outcome = m_desk.cashRegister().carryOut(command); });
    tellOutcome(outcome);
    showDeeds();
    return outcome;
}

void TillWindow::tellOutcome(const Outcome &outcome)
{
    if (outcome.kind == Outcome::Failed) {
        m_fault.tellCommand(outcome);
        m_pages.setCurrentIndex(1);
        return;
    }
    if (outcome && outcome.change)
        tellChange(*outcome.change);
    else if (!outcome && (!m_hasShownMessage || outcome.missing)) // which stands there already
        tell(outcome,
             outcome.kind == Outcome::Declined ? Banner::Tone::Notice : Banner::Tone::Warning);
}

void TillWindow::tellChange(Kopecks change)
{
    banner().tell(Message{messages::tillChange(), {toText(change)}}, Banner::Tone::Notice);
    const Kopecks given = m_desk.cashRegister().receipt()->total() + change;
    m_paid = told("till", "Given %1 · change %2").with({toText(given), toText(change)});
    showReceipt();
}

void TillWindow::tell(const Outcome &outcome, Banner::Tone tone)
{
    if (outcome.text(m_translator).isEmpty())
        return; // a plugin that says nothing
    banner().tell([outcome](const Translator &translator) { return outcome.text(translator); },
                  tone);
}

//! Without a receipt one is opened first.
bool TillWindow::add(const QString &code, double count)
{
    if (m_desk.isOn() && m_desk.cashRegister().check(command::Open{})) {
        if (!carryOut(command::Open{}))
            return false;
    }
    if (!carryOut(command::Add{code, count}))
        return false;
    const auto lines = m_desk.cashRegister().receipt()->lines();
    m_table.selectPosition(lines.constLast()->getPosnum());
    return true;
}

void TillWindow::doDeed(Deed deed)
{
    const QList<int> selected = m_table.selectedPositions();
    if (!m_desk.isOn() || m_desk.isBusy())
        return;
    if (const auto command = commandOf(deed, selected)) {
        if (carryOut(*command) && deed == Deed::Unite) // that is where all of it went
            m_table.selectPosition(selected.constFirst());
        return;
    }
    const Doer doer{
        [this](const Command &command) {
            return m_desk.isOn() ? m_desk.cashRegister().check(command) : Outcome::busy();
        },
        [this](const Command &command) { carryOut(command); },
        [this] { return m_desk.isOn() ? m_desk.cashRegister().receipt()->total() : 0; }};
    (new EntryDialog(m_translator,
                     entryFor(deed, selected, *m_desk.cashRegister().receipt(), m_translator, doer),
                     this))
        ->open();
}

void TillWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(!m_desk.isBusy() && m_scripts.mayClose());
}

void TillWindow::keyPressEvent(QKeyEvent *event)
{
    const bool selects = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    if (selects && isAtRegister())
        static_cast<QObject &>(m_table).event(event); // sent, it would come back
    else
        QMainWindow::keyPressEvent(event);
}

} // namespace till
