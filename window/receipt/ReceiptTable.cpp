#include "window/receipt/ReceiptTable.h"

#include "till/language/TillMessages.h"
#include "window/receipt/ReceiptDelegate.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>

#include <algorithm>
#include <numeric>

namespace till {

ReceiptTable::ReceiptTable(const Translator &translator, QWidget *parent)
    : QTableView(parent)
    , m_receipt(translator)
{
    setModel(&m_receipt);
    setItemDelegate(new ReceiptDelegate(*this));
    setUp();
    translate(translator);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (selected)
            selected();
    });
    connect(&m_receipt, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex &first, const QModelIndex &last) {
                widen(first.row(), last.row());
            });
    connect(&m_receipt, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex &, int first, int last) { widen(first, last); });
    connect(&m_receipt, &QAbstractItemModel::modelReset, this, [this] {
        sizeRows();
        if (selected)
            selected();
    });
}

void ReceiptTable::setUp()
{
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalHeader()->hide();
    QHeaderView &header = *horizontalHeader();
    header.setHighlightSections(false);
    header.setSectionsClickable(false);
    header.setSectionResizeMode(QHeaderView::Fixed);
    header.setSectionResizeMode(ReceiptModel::ArticleName, QHeaderView::Stretch);
    sizeRows();
}

void ReceiptTable::sizeRows()
{
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    const int height = static_cast<const ReceiptDelegate *>(itemDelegate())->rowHeight();
    verticalHeader()->setMinimumSectionSize(height);
    verticalHeader()->setDefaultSectionSize(height);
    for (const int column :
         {ReceiptModel::Number, ReceiptModel::Count, ReceiptModel::Price, ReceiptModel::Sum})
        m_widths[column] = 0;
    widen(0, m_receipt.rowCount() - 1);
}

//! To ask every row after each change would cost too much.
void ReceiptTable::widen(int first, int last)
{
    constexpr int margins = 12;
    for (const int column :
         {ReceiptModel::Number, ReceiptModel::Count, ReceiptModel::Price, ReceiptModel::Sum}) {
        const QString caption =
            m_receipt.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        int width = fontMetrics().horizontalAdvance(caption + QStringLiteral("00"));
        for (int row = first; row <= last; ++row) {
            const QString text = m_receipt.index(row, column).data().toString();
            width = std::max(width, fontMetrics().horizontalAdvance(text));
        }
        if (width + margins <= m_widths[column])
            continue;
        m_widths[column] = width + margins;
        setColumnWidth(column, m_widths[column]);
    }
    makeRoom();
}

//! The price goes where it would leave too little of the article's name.
void ReceiptTable::makeRoom()
{
    constexpr int leastSigns = 18;
    const int others = std::accumulate(m_widths.cbegin(), m_widths.cend(), 0);
    const bool isNarrow =
        viewport()->width() - others < leastSigns * fontMetrics().averageCharWidth();
    setColumnHidden(ReceiptModel::Price, isNarrow);
}

void ReceiptTable::show(std::shared_ptr<const ShownReceipt> receipt)
{
    const int before = m_receipt.rowCount();
    m_receipt.show(std::move(receipt));
    if (m_receipt.rowCount() > before)
        scrollToBottom();
}

void ReceiptTable::translate(const Translator &translator)
{
    m_receipt.translate(translator);
    sizeRows();
    m_nothing = translator.text(messages::tillNoLines());
    setAccessibleName(translator.text(told("till", "Receipt")));
    viewport()->update();
}

QList<int> ReceiptTable::selectedPositions() const
{
    QList<int> posnums;
    QModelIndexList rows = selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    for (const QModelIndex &row : std::as_const(rows))
        posnums.append(m_receipt.posnumAt(row.row()));
    return posnums;
}

void ReceiptTable::selectPosition(int posnum)
{
    const int row = m_receipt.rowOf(posnum);
    if (row < 0)
        return;
    selectionModel()->setCurrentIndex(m_receipt.index(row, ReceiptModel::ArticleName),
                                      QItemSelectionModel::ClearAndSelect
                                          | QItemSelectionModel::Rows);
    scrollTo(currentIndex());
}

void ReceiptTable::showFirstOf(const QSet<int> &posnums)
{
    int first = m_receipt.rowCount();
    for (const int posnum : posnums) {
        if (const int row = m_receipt.rowOf(posnum); row >= 0)
            first = std::min(first, row);
    }
    scrollTo(m_receipt.index(first, ReceiptModel::ArticleName));
}

void ReceiptTable::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (m_receipt.rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(viewport()->rect(), Qt::AlignCenter, m_nothing);
}

//! What is seen at the end stays the end.
void ReceiptTable::resizeEvent(QResizeEvent *event)
{
    const bool isAtEnd = verticalScrollBar()->value() == verticalScrollBar()->maximum();
    QTableView::resizeEvent(event);
    makeRoom();
    if (isAtEnd)
        scrollToBottom();
}

void ReceiptTable::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        sizeRows();
}

} // namespace till
