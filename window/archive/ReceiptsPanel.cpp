#include "window/archive/ReceiptsPanel.h"

#include "till/database/DatabaseFile.h"
#include "till/language/TillMessages.h"
#include "till/reports/ReceiptJson.h"
#include "till/view/ReceiptText.h"
#include "window/archive/ReceiptPage.h"
#include "window/look/Paints.h"

#include <QtGui/QShowEvent>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTextBrowser>

#include <utility>

namespace till {

namespace {

Message noFile()
{
    return told("till", "The database is in memory: there is no file in which past receipts could "
                        "be looked up");
}

} // namespace

ReceiptsPanel::ReceiptsPanel(std::function<QString()> database, const Translator &translator,
                             QWidget *parent)
    : QWidget(parent)
    , m_database(std::move(database))
    , m_translator(translator)
    , m_model(translator)
    , m_states(new QComboBox)
    , m_number(new QLineEdit)
    , m_read(new QPushButton)
    , m_list(new QTableView)
    , m_count(new QLabel)
    , m_page(new QTextBrowser)
{
    m_states->setObjectName("receiptStates");
    m_number->setObjectName("receiptNumber");
    m_read->setObjectName("receiptsRead");
    m_list->setObjectName("receiptList");
    m_count->setObjectName("receiptCount");
    m_page->setObjectName("receiptPage");
    layOut();
    connectAll();
    tellTexts();
}

void ReceiptsPanel::layOut()
{
    m_states->addItem({});
    for (const ReceiptState state : {ReceiptState::Open, ReceiptState::Subtotal,
                                     ReceiptState::Closed, ReceiptState::Cancelled})
        m_states->addItem({}, static_cast<int>(state));
    for (QWidget *const touched : std::initializer_list<QWidget *>{m_states, m_number, m_read})
        touched->setMinimumHeight(touchHeight);
    m_number->setMaxLength(18);
    m_list->setModel(&m_model);
    m_list->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_list->setTabKeyNavigation(false);
    m_list->setWordWrap(false);
    m_list->verticalHeader()->hide();
    m_list->horizontalHeader()->setStretchLastSection(true);
    m_list->resizeColumnsToContents();
    m_count->setWordWrap(true);
    m_page->setOpenLinks(false);

    auto *const above = new QHBoxLayout;
    above->addWidget(m_states);
    above->addWidget(m_number, 1);
    above->addWidget(m_read);
    auto *const parts = new QSplitter(Qt::Vertical);
    parts->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored); // content with its least
    parts->addWidget(m_list);
    parts->addWidget(m_page);
    parts->setStretchFactor(1, 2);
    auto *const all = new QVBoxLayout(this);
    all->addLayout(above);
    all->addWidget(parts, 1);
    all->addWidget(m_count);
}

void ReceiptsPanel::connectAll()
{
    connect(m_read, &QPushButton::clicked, this, [this] { read(); });
    connect(m_states, &QComboBox::activated, this, [this] { read(); });
    connect(m_number, &QLineEdit::returnPressed, this, [this] { find(); });
    connect(m_list->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &row) {
                if (row.isValid() && !m_isReading)
                    open(m_model.numberAt(row.row()));
            });
}

void ReceiptsPanel::translate(const Translator &translator)
{
    m_translator = translator;
    m_model.translate(translator);
    tellTexts();
    if (m_open != 0)
        open(m_open);
    else if (const Message said = m_told; said != Message())
        tellFault(said);
}

void ReceiptsPanel::tellTexts()
{
    m_states->setItemText(0, m_translator.text(told("till", "All receipts")));
    for (int item = 1; item < m_states->count(); ++item)
        m_states->setItemText(
            item,
            m_translator.text(nameOf(static_cast<ReceiptState>(m_states->itemData(item).toInt()))));
    m_states->setAccessibleName(m_translator.text(told("till", "Which receipts are listed")));
    const QString number = m_translator.text(told("till", "Number of a receipt, and Enter"));
    m_number->setPlaceholderText(number);
    m_number->setAccessibleName(number);
    m_read->setText(m_translator.text(told("till", "Read anew")));
    m_list->setAccessibleName(m_translator.text(told("till", "Past receipts")));
    m_page->setAccessibleName(m_translator.text(told("till", "The receipt, to be read only")));
    tellCount();
}

void ReceiptsPanel::tellCount()
{
    const QString count = QString::number(m_model.count());
    const QString shown = QString::number(m_model.rowCount());
    m_count->setText(m_translator.text(
        m_model.count() == m_model.rowCount()
            ? told("till", "Receipts: %1").with({count})
            : told("till", "Receipts: %1; the newest %2 are listed, others open by their numbers")
                  .with({count, shown})));
}

void ReceiptsPanel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous())
        read();
}

Selection ReceiptsPanel::selection() const
{
    Selection selection;
    if (const QVariant state = m_states->currentData(); state.isValid())
        selection.states = {static_cast<ReceiptState>(state.toInt())};
    return selection;
}

void ReceiptsPanel::read()
{
    m_isReading = true;
    const bool isInMemory = m_database() == inMemory();
    const auto archive = Archive::open(m_database());
    const Result<> listed =
        archive ? m_model.read(**archive, selection()) : Result<>(archive.error());
    if (!listed) {
        m_model.clear();
        if (isInMemory)
            tellFault(noFile());
        else
            tellFault(listed.error().text());
    }
    m_list->resizeColumnsToContents();
    m_list->horizontalHeader()->setStretchLastSection(true);
    markOpen();
    tellCount();
    m_isReading = false;
}

void ReceiptsPanel::markOpen()
{
    const bool wasReading = std::exchange(m_isReading, true);
    if (const int row = m_model.rowOf(m_open); row >= 0)
        m_list->setCurrentIndex(m_model.index(row, 0));
    else
        m_list->selectionModel()->clear();
    m_isReading = wasReading;
}

void ReceiptsPanel::find()
{
    bool isNumber = false;
    const qint64 number = m_number->text().trimmed().toLongLong(&isNumber);
    if (isNumber)
        open(number);
    else
        tellFault(told("till", "\"%1\" is no number of a receipt").with({brief(m_number->text())}));
    markOpen();
}

void ReceiptsPanel::open(qint64 number)
{
    m_open = 0;
    if (m_database() == inMemory())
        return tellFault(noFile());
    const auto archive = Archive::open(m_database());
    if (!archive)
        return tellFault(archive.error().text());
    const auto read = (*archive)->receipt(number, taraPlugin());
    if (!read)
        return tellFault(read.error().text());
    if (!*read)
        return tellFault(told("till", "There is no receipt %1").with({QString::number(number)}));
    if (!(**read).recordHolds)
        return tellFault(damageOf(**read));
    const auto journal = (*archive)->journal(number);
    if (!journal)
        return tellFault(journal.error().text());
    m_page->setHtml(receiptPage(**read, *journal, m_translator));
    m_open = number;
    m_told = {};
}

void ReceiptsPanel::tellFault(const QString &text)
{
    m_open = 0;
    m_told = {};
    m_page->setPlainText(text);
}

void ReceiptsPanel::tellFault(const Message &message)
{
    tellFault(m_translator.text(message));
    m_told = message;
}

} // namespace till
