#ifndef WINDOW_ARCHIVE_RECEIPTSPANEL_H
#define WINDOW_ARCHIVE_RECEIPTSPANEL_H

#include "window/archive/KeptReceiptsModel.h"

#include <QtWidgets/QWidget>

#include <functional>

QT_BEGIN_NAMESPACE
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;
class QTextBrowser;
QT_END_NAMESPACE

namespace till {

/*!
 * The receipts that a database keeps, and one of them as the register shows it. They are only
 * looked at; the till that has the database open is not held up.
 *
 * They are read when the panel comes to be seen and when it is asked to, not while a till goes on.
 */
class ReceiptsPanel final : public QWidget
{
public:
    //! \a database tells the path of the database, each time it is looked into.
    ReceiptsPanel(std::function<QString()> database, const Translator &translator,
                  QWidget *parent = nullptr);

    void translate(const Translator &translator);
    QSize sizeHint() const override { return {440, 480}; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    void layOut();
    void connectAll();
    void tellTexts();
    void tellCount();
    //! Reads the list anew; the same receipt stays open.
    void read();
    //! Opens the receipt of which the number was typed.
    void find();
    void open(qint64 number);
    //! Shows what is wrong in place of a receipt.
    void tellFault(const QString &text);
    void tellFault(const Message &message);
    //! Marks the receipt that is open, if any, in the list.
    void markOpen();
    Selection selection() const;

    const std::function<QString()> m_database;
    Translator m_translator;
    KeptReceiptsModel m_model;
    QComboBox *const m_states;
    QLineEdit *const m_number;
    QPushButton *const m_read;
    QTableView *const m_list;
    QLabel *const m_count;
    QTextBrowser *const m_page;
    qint64 m_open = 0; //!< the number of the receipt that is shown; 0 for none
    Message m_told;    //!< what is wrong, to be said again in another language
    bool m_isReading = false;
};

} // namespace till

#endif // WINDOW_ARCHIVE_RECEIPTSPANEL_H
