#ifndef WINDOW_DESK_DEEDBAR_H
#define WINDOW_DESK_DEEDBAR_H

#include "till/language/Translator.h"
#include "window/desk/Deed.h"

#include <QtCore/QMap>
#include <QtWidgets/QWidget>

QT_BEGIN_NAMESPACE
class QPushButton;
QT_END_NAMESPACE

namespace till {

/*!
 * A button for each deed. What cannot be done now is disabled, and says why when it is pointed at,
 * touched, or asked for by its key.
 */
class DeedBar final : public QWidget
{
public:
    explicit DeedBar(const Translator &translator, QWidget *parent = nullptr);

    void translate(const Translator &translator);
    //! From now on \a deed cannot be done because of \a whyNot, or can when that is done.
    void setReason(Deed deed, const Outcome &whyNot);

    //! Told what the cashier does.
    std::function<void(Deed deed)> wanted;
    //! Told why it cannot be done.
    std::function<void(const Outcome &whyNot)> refused;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Button
    {
        QPushButton *button = nullptr;
        Outcome whyNot;
        QString reason; //!< the same in words
    };

    void press(Deed deed);
    void describe(const DeedRow &row);

    Translator m_translator;
    QMap<Deed, Button> m_buttons;
};

} // namespace till

#endif // WINDOW_DESK_DEEDBAR_H
