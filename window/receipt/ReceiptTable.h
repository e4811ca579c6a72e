#ifndef WINDOW_RECEIPT_RECEIPTTABLE_H
#define WINDOW_RECEIPT_RECEIPTTABLE_H

#include "window/receipt/ReceiptModel.h"

#include <QtWidgets/QTableView>

#include <array>

namespace till {

//! The receipt as the cashier sees it, a row a position, of which any can be selected.
class ReceiptTable final : public QTableView
{
public:
    explicit ReceiptTable(const Translator &translator, QWidget *parent = nullptr);

    ReceiptModel &receipt() { return m_receipt; }

    //! Shows \a receipt, which may be null; of one that grew the end is seen. What is selected
    //! stays.
    void show(std::shared_ptr<const ShownReceipt> receipt);
    //! In the language of \a translator from now on.
    void translate(const Translator &translator);

    //! The numbers of the selected positions, from above.
    QList<int> selectedPositions() const;
    //! Selects the position with that number, and no other.
    void selectPosition(int posnum);

    //! Brings the first of the positions with these numbers into view.
    void showFirstOf(const QSet<int> &posnums);

    //! Told when another selection was made.
    std::function<void()> selected;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void setUp();
    void sizeRows();
    //! Makes the columns of numbers as wide as these rows need.
    void widen(int first, int last);

    void makeRoom();

    using QTableView::show;

    ReceiptModel m_receipt;
    std::array<int, ReceiptModel::columns> m_widths{}; //!< of the columns of numbers
    QString m_nothing;                                 //!< what stands there without a position
};

} // namespace till

#endif // WINDOW_RECEIPT_RECEIPTTABLE_H
