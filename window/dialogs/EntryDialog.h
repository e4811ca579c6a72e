#ifndef WINDOW_DIALOGS_ENTRYDIALOG_H
#define WINDOW_DIALOGS_ENTRYDIALOG_H

#include "till/language/Translator.h"
#include "till/result/Result.h"

#include <QtWidgets/QDialog>

#include <functional>

QT_BEGIN_NAMESPACE
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
QT_END_NAMESPACE

namespace till {

/*!
 * Asks for what a command needs: a quantity, money, a number. It can be typed, or touched on the
 * pad. Opened with `open()`, it keeps the window from the mouse and the keys, and runs no loop of
 * its own.
 */
class EntryDialog final : public QDialog
{
public:
    //! What is asked for.
    struct Wanted
    {
        QString name; //!< of what is done, for the frame
        QString title;
        QString hint;     //!< below the field; may be empty
        QString proposal; //!< what the field begins with, selected
        QString signs;    //!< beside the digits, each a key of the pad
        //! Whether what was entered can be taken; else what is wrong with it, in words.
        std::function<Result<void, QString>(const QString &text)> check;
        std::function<void(const QString &text)> taken;
    };

    EntryDialog(const Translator &translator, Wanted wanted, QWidget *parent);

private:
    void layOut(const Translator &translator);
    QLayout *makeButtons(const Translator &translator);
    QWidget *makePad(const Translator &translator);
    QPushButton *makeKey(const QString &sign, const QString &name, std::function<void()> press);
    void check();
    void take();

    const Wanted m_wanted;
    QLineEdit &m_field;
    QLabel &m_fault;
    QPushButton &m_confirm;
};

} // namespace till

#endif // WINDOW_DIALOGS_ENTRYDIALOG_H
