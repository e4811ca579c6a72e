// The parts of the window: where they are, what they tell it, what they say.

#include "window/desk/TillWindow.h"

#include "till/language/TillMessages.h"
#include "window/articles/ArticlePanel.h"
#include "window/course/CourseDock.h"
#include "window/dialogs/FaultPage.h"
#include "window/look/ScrolledPage.h"
#include "window/receipt/ReceiptTable.h"
#include "window/scripts/ScriptPanel.h"
#include "window/scripts/ScriptsDock.h"
#include "window/shelf/Shelf.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLibraryInfo>
#include <QtCore/QLocale>
#include <QtGui/QShortcut>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QMenu>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QToolButton>

namespace till {

namespace {

//! A column of parts that fills \a widget.
QVBoxLayout *makeColumn(QWidget *widget)
{
    auto *const column = new QVBoxLayout(widget);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    return column;
}

} // namespace

void TillWindow::layOut()
{
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    large.setBold(true);
    m_total.setFont(large);
    m_total.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto *const left = new QWidget;
    auto *const receipt = makeColumn(left);
    receipt->addWidget(&m_table, 1);
    m_paidLabel.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto *const sums = new QHBoxLayout;
    sums->addWidget(&m_paidLabel, 1);
    sums->addWidget(&m_total);
    receipt->addLayout(sums);
    receipt->addWidget(&m_deeds);
    auto *const right = new QWidget;
    auto *const goods = makeColumn(right);
    goods->addWidget(&m_articles, 3);
    goods->addWidget(&m_shelf, 2);
    auto *const halves = new QSplitter;
    halves->setChildrenCollapsible(false);
    halves->addWidget(left);
    halves->addWidget(right);
    halves->setSizes({540, 480});
    auto *const cashDesk = new QWidget;
    auto *const all = makeColumn(cashDesk);
    all->setContentsMargins(4, 0, 4, 4);
    all->addWidget(&m_strip);
    constexpr QSize leastOfDesk(360, 160);
    all->addWidget(new ScrolledPage(halves, leastOfDesk), 1);
    m_pages.addWidget(cashDesk);
    m_pages.addWidget(new ScrolledPage(&m_fault, leastOfDesk));
    setCentralWidget(&m_pages);
    resize(1024, 600);
}

//! They are hidden until their keys or the menu show them.
void TillWindow::addDocks()
{
    const QList<KeyDock *> docks{&m_course, &m_scripts};
    for (KeyDock *const dock : docks) {
        addDockWidget(Qt::RightDockWidgetArea, dock);
        dock->hide();
        addAction(dock->showAction());
    }
    tabifyDockWidget(&m_course, &m_scripts);
}

void TillWindow::connectParts()
{
    m_articles.chosen = [this](const QString &code, double count) { return add(code, count); };
    // In front of the page that tells of a fault it is lost, and does not turn the page.
    m_typing.typed = [this](const QString &text) {
        if (isAtRegister())
            m_articles.typeCode(text);
    };
    m_typing.entered = [this] {
        if (isAtRegister())
            m_articles.enterCode();
    };
    m_articles.mistaken = [this](const Message &mistake) {
        banner().tell(mistake, Banner::Tone::Notice);
    };
    m_deeds.wanted = [this](Deed deed) { doDeed(deed); };
    m_deeds.refused = [this](const Outcome &whyNot) { tell(whyNot, Banner::Tone::Notice); };
    m_table.selected = [this] {
        m_shelf.setLit(selectedGoods());
        showDeedsSoon();
    };
    m_shelf.selected = [this] {
        const QSet<int> goods = m_shelf.goodsOfSelected();
        m_table.receipt().setLit(goods);
        m_table.showFirstOf(goods);
    };
    m_scripts.scripts().atWork = [this](const std::function<void()> &line) { whileAtWork(line); };
    m_fault.goOn = [this] {
        if (!m_desk.isOn())
            return switchOn();
        m_pages.setCurrentIndex(0);
        m_articles.focusCode();
    };
}

void TillWindow::addShortcuts()
{
    const auto on = [this](const QKeySequence &key, auto &&act) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, act);
    };
    on(Qt::Key_F3, [this] {
        if (isAtRegister())
            m_articles.focusSearch();
    });
    on(Qt::Key_Escape, [this] {
        if (!isAtRegister())
            return m_fault.setFocus();
        banner().clear();
        m_articles.focusCode();
    });
    on(Qt::CTRL | Qt::Key_L, [this] { m_strip.language().click(); });
    connect(&m_strip.language(), &QToolButton::clicked, this, [this] {
        const QStringList languages = Translator::languages();
        const auto next = languages.indexOf(m_languageCode) + 1;
        setLanguage(languages[next % languages.size()]);
    });
    m_strip.menu().setMenu(new QMenu(this));
}

void TillWindow::fillMenu()
{
    QMenu &menu = *m_strip.menu().menu();
    menu.clear();
    QAction *const moves = menu.addAction(m_translator.text(told("till", "Changes move smoothly")));
    moves->setCheckable(true);
    moves->setChecked(m_shelf.isMoving());
    menu.addAction(m_course.showAction());
    menu.addAction(m_scripts.showAction());
    connect(moves, &QAction::toggled, this, [this](bool on) { m_shelf.setMoving(on); });
}

void TillWindow::translate()
{
    // Without the toolkit's translations, which a system may not have, those texts stay English.
    QCoreApplication::removeTranslator(&m_qtTexts);
    if (m_qtTexts.load(QLocale(m_languageCode), QStringLiteral("qtbase"), QStringLiteral("_"),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_qtTexts);
    const auto say = [this](const Message &message) { return m_translator.text(message); };
    setWindowTitle(say(told("till", "Till")));
    m_strip.language().setText(m_languageCode.toUpper());
    m_strip.language().setAccessibleName(say(told("till", "Language (Ctrl+L)")));
    m_strip.language().setToolTip(m_strip.language().accessibleName());
    m_strip.menu().setText(QStringLiteral("☰"));
    m_strip.menu().setAccessibleName(say(told("till", "Menu")));
    banner().translate(m_translator);
    m_fault.translate(m_translator);
    m_table.translate(m_translator);
    m_deeds.translate(m_translator);
    m_articles.translate(m_translator);
    m_shelf.translate(m_translator);
    m_course.translate(m_translator);
    m_scripts.translate(m_translator);
    fillMenu();
    showReceipt();
    showDeeds();
}

} // namespace till
