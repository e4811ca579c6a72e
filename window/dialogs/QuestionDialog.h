#ifndef WINDOW_DIALOGS_QUESTIONDIALOG_H
#define WINDOW_DIALOGS_QUESTIONDIALOG_H

#include "till/language/Translator.h"

#include <QtWidgets/QDialog>

namespace till {

/*!
 * A question to the cashier, with its own text and its own two choices; above them, unless it is
 * empty, what it is about. What a scanner types in the
 * meantime must not say yes: the declining choice has the focus, and closing takes it too.
 */
class QuestionDialog final : public QDialog
{
public:
    QuestionDialog(const Translator &translator, const Question &question, const Message &about,
                   QWidget *parent);
};

} // namespace till

#endif // WINDOW_DIALOGS_QUESTIONDIALOG_H
