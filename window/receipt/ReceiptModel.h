#ifndef WINDOW_RECEIPT_RECEIPTMODEL_H
#define WINDOW_RECEIPT_RECEIPTMODEL_H

#include "till/language/Translator.h"
#include "till/view/ReceiptText.h"
#include "window/look/Filling.h"
#include "window/look/ShownReceipt.h"

#include <QtCore/QAbstractTableModel>
#include <QtCore/QSet>

#include <memory>
#include <optional>

namespace till {

/*!
 * The positions of a receipt, a row each, stornoed ones too. What a row says is put into words when
 * it is asked for, and only rows that changed are told to have.
 */
class ReceiptModel final : public QAbstractTableModel
{
public:
    enum Column { Number, ArticleName, Count, Price, Sum };
    static constexpr int columns = Sum + 1;

    explicit ReceiptModel(const Translator &translator);

    //! Shows \a receipt, which may be null, in place of the one before.
    void show(std::shared_ptr<const ShownReceipt> receipt);
    //! From now on rows are in the language of \a translator.
    void translate(const Translator &translator);
    //! Lights up the positions with these numbers, and no others.
    void setLit(const QSet<int> &posnums);

    const std::shared_ptr<const ShownReceipt> &shown() const { return m_shown; }
    //! The number of the position in \a row, which must be there.
    int posnumAt(int row) const { return m_rows[row].line.posnum; }
    //! The row of the position with that number, or -1.
    int rowOf(int posnum) const;

    bool isStornoed(int row) const { return m_rows[row].line.stornoed; }
    bool isLit(int row) const { return m_lit.contains(posnumAt(row)); }
    //! What is in the tara of \a row; nothing when it is none.
    std::optional<Filling> fillingAt(int row) const;
    //! What the goods of \a row look like in a tara; nothing when they are none.
    std::optional<GoodsLook> lookAt(int row) const;
    //! What is noted of it, without a bar.
    QList<Piece> notesAt(int row) const;
    //! The mark of a stornoed position, in words.
    QString stornoMark() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    //! All that a row shows, to see whether it changed.
    struct Row
    {
        LineRecord line;
        std::optional<TaraUse> tara;
        std::optional<GoodsUse> goods;
        QList<Filling::Layer> layers;

        bool operator==(const Row &other) const = default;
    };

    static QList<Row> rowsOf(const ShownReceipt *shown);
    void tellChanged(int first, int last);
    ReceiptWording wording() const;
    QSharedPointer<const Position> positionAt(int row) const;
    QString textAt(int row, int column) const;
    QString spokenAt(int row, int column) const;

    Translator m_translator;
    std::shared_ptr<const ShownReceipt> m_shown;
    QList<Row> m_rows;
    QSet<int> m_lit;
};

} // namespace till

#endif // WINDOW_RECEIPT_RECEIPTMODEL_H
