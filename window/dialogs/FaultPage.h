#ifndef WINDOW_DIALOGS_FAULTPAGE_H
#define WINDOW_DIALOGS_FAULTPAGE_H

#include "till/language/Translator.h"
#include "till/register/Outcome.h"
#include "till/result/Result.h"

#include <QtWidgets/QWidget>

#include <functional>
#include <optional>

QT_BEGIN_NAMESPACE
class QLabel;
class QPushButton;
QT_END_NAMESPACE

namespace till {

//! A page in place of the register that says what is wrong, where, and what to do about it, in the
//! words of the console program.
class FaultPage final : public QWidget
{
public:
    explicit FaultPage(const Translator &translator, QWidget *parent = nullptr);

    //! Tells of \a fault, with which the till cannot be switched on.
    void tellStart(const Fault &fault);
    //! Tells that a command came to nothing, as \a outcome says, and that the receipt is as before.
    void tellCommand(const Outcome &outcome);
    void translate(const Translator &translator);

    //! Told when the cashier wants to go on: to switch the till on again, or back to the receipt.
    std::function<void()> goOn;

private:
    void layOut();
    void tell();
    void fill();
    void setPart(QLabel &caption, QLabel &text, const Message &title, const QString &words);

    Translator m_translator;
    Fault m_fault;                    //!< with which the till cannot be switched on
    std::optional<Outcome> m_outcome; //!< of a command; then the fault is that
    QLabel &m_title;
    QLabel &m_placeCaption;
    QLabel &m_place;
    QLabel &m_reasonCaption;
    QLabel &m_reason;
    QLabel &m_remedyCaption;
    QLabel &m_remedy;
    QPushButton &m_goOn;
};

} // namespace till

#endif // WINDOW_DIALOGS_FAULTPAGE_H
