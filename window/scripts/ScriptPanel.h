#ifndef WINDOW_SCRIPTS_SCRIPTPANEL_H
#define WINDOW_SCRIPTS_SCRIPTPANEL_H

#include "window/scripts/ScriptModel.h"
#include "window/scripts/ScriptPlayer.h"
#include "window/scripts/ScriptRecording.h"

#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTableView;
QT_END_NAMESPACE

namespace till {

/*!
 * A script, played on the register at once, step by step or up to a line; or being recorded while
 * somebody uses the register.
 *
 * A line comes at each turn of the event loop, so that what it does is seen, and none while another
 * command is under way or a dialog is open: then the play pauses.
 */
class ScriptPanel final : public QWidget
{
public:
    //! Asks for a file; empty when nobody names one.
    using Choose = std::function<QString(QWidget *parent, const QString &title)>;

    //! Both must outlive the panel.
    ScriptPanel(CashDesk &desk, Notes &notes, const Translator &translator,
                QWidget *parent = nullptr);

    void translate(const Translator &translator);
    QSize sizeHint() const override { return {440, 480}; }

    //! How a script to open and a file to save to are asked for: with the desktop's dialogs unless
    //! somebody sets another way.
    Choose chooseScript;
    Choose chooseTarget;
    //! Asks whether a recording that was not saved can go.
    std::function<bool(QWidget *parent, const QString &question)> confirmLoss;

    //! Calls what carries a line out; somebody may show meanwhile that it is under way.
    std::function<void(const std::function<void()> &line)> atWork;

    //! Whether nothing is lost that somebody wants: there is no recording that was not saved, or
    //! the cashier lets it go.
    bool mayDropRecording();

private:
    QPushButton *makeButton(const char *name, void (ScriptPanel::*click)());
    void layOutLines();
    void layOut();
    void tellTexts();
    //! Says of each button whether it can be pressed, and why not.
    void tellState();
    void allow(QPushButton *button, const Message &what, const Message &whyNot);
    QString status() const;

    void open();
    void run();
    void step();
    void runToLine();
    void rewind();
    void record();
    void save();
    //! Shows the script as it stands, and marks in it.
    void showScript(const QString &path);
    bool carryOutNext();
    void tick();
    void pause();
    void mark();
    void tell(const QString &text);

    Translator m_translator;
    QString m_folder; //!< where the last script was found, at first the sample scripts
    ScriptPlayer m_player;
    ScriptRecording m_recording;
    ScriptModel m_model;
    QTimer m_timer;         //!< runs while lines are carried out by themselves
    qsizetype m_until = -1; //!< the line to stop before
    QString m_told;         //!< what there is to say, until something else happens
    QPushButton *const m_open;
    QPushButton *const m_run;
    QPushButton *const m_step;
    QPushButton *const m_runToLine;
    QPushButton *const m_rewind;
    QPushButton *const m_record;
    QPushButton *const m_save;
    QTableView *const m_lines;
    QPlainTextEdit *const m_printed;
    QLabel *const m_status;
};

} // namespace till

#endif // WINDOW_SCRIPTS_SCRIPTPANEL_H
