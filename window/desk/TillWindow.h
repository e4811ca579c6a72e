#ifndef WINDOW_DESK_TILLWINDOW_H
#define WINDOW_DESK_TILLWINDOW_H

#include "till/register/CashDesk.h"
#include "window/articles/Typing.h"
#include "window/desk/DeedBar.h"
#include "window/desk/TopStrip.h"
#include "window/desk/WindowFront.h"

#include <QtCore/QTimer>
#include <QtCore/QTranslator>
#include <QtWidgets/QMainWindow>

QT_BEGIN_NAMESPACE
class QStackedWidget;
QT_END_NAMESPACE

namespace till {

class ArticlePanel;
class CourseDock;
class FaultPage;
class ReceiptTable;
class ScriptsDock;
class Shelf;

/*!
 * The register in a window. Everything is done through the desk's register, as a command; what is
 * shown is what was stored.
 *
 * While a command is under way, in a question say, nothing in here does anything, and the window
 * does not close.
 */
class TillWindow final : public QMainWindow
{
public:
    //! Of a \a desk that is off or on. Both must outlive the window.
    TillWindow(CashDesk &desk, Notes &notes, const QString &language);
    ~TillWindow() override;

    //! Switches the desk on, or tells why that does not work.
    void switchOn();
    //! From now on all texts are in \a language.
    void setLanguage(const QString &language);
    const Translator &translator() const { return m_translator; }

    //! Carries \a command out, and tells the cashier how it ended where that does not show.
    Outcome carryOut(const Command &command);

    ReceiptTable &table() { return m_table; }
    Shelf &shelf() { return m_shelf; }
    Banner &banner() { return m_strip.banner(); }

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void layOut();
    void connectParts();
    void addDocks();
    void addShortcuts();
    void fillMenu();
    void translate();

    bool isAtRegister() const; //!< rather than at the page that tells of a fault
    QSet<int> selectedGoods() const;
    void showReceipt();
    void showDeeds();
    void showDeedsSoon();
    //! Does \a work, and shows meanwhile that the till is at it.
    void whileAtWork(const std::function<void()> &work);
    void hear(const QJsonObject &note);
    bool add(const QString &code, double count);
    void doDeed(Deed deed);
    void tellOutcome(const Outcome &outcome);
    void tellChange(Kopecks change);
    void tell(const Outcome &outcome, Banner::Tone tone);

    CashDesk &m_desk;
    Translator m_translator;
    QString m_languageCode;
    QTranslator m_qtTexts; //!< what the toolkit says by itself, in menus of fields say
    TopStrip &m_strip;
    QStackedWidget &m_pages;
    FaultPage &m_fault;
    ReceiptTable &m_table;
    QLabel &m_total;
    QLabel &m_paidLabel;
    Message m_paid; //!< money given and change of the receipt that is shown
    DeedBar &m_deeds;
    ArticlePanel &m_articles;
    Shelf &m_shelf;
    CourseDock &m_course;
    ScriptsDock &m_scripts;
    Typing m_typing;
    WindowFront m_front;
    const InstalledFront m_installed;
    Subscription m_receiptSeen;
    Subscription m_outcomesHeard;
    QTimer m_deedsSoon; //!< what is told in the middle of a command is looked at when it is over
    bool m_hasShownMessage = false; //!< since the command under way began
};

} // namespace till

#endif // WINDOW_DESK_TILLWINDOW_H
