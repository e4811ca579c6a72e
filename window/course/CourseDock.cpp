#include "window/course/CourseDock.h"

#include "window/look/Paints.h"
#include "window/look/ScrolledPage.h"

#include <QtCore/QSortFilterProxyModel>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QShortcut>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QTreeView>

namespace till {

namespace {

//! As wide as a tree wants to be.
class Page final : public QWidget
{
public:
    QSize sizeHint() const override { return {440, 480}; }
};

//! Draws what came of something behind what happened, so that the tree needs one column.
class WithItsEnd final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->text = index.data(Qt::AccessibleTextRole).toString();
    }
};

} // namespace

CourseDock::CourseDock(Notes &notes, const Translator &translator, CourseModel::Limits limits,
                       QWidget *parent)
    : KeyDock(Qt::Key_F9, parent)
    , m_translator(translator)
    , m_model(notes, translator, limits)
    , m_shown(new QSortFilterProxyModel(this))
    , m_filter(new QLineEdit)
    , m_follow(new QCheckBox)
    , m_copy(new QPushButton)
    , m_tree(new QTreeView)
    , m_kept(new QLabel)
{
    setObjectName("course");
    m_filter->setObjectName("courseFilter");
    m_follow->setObjectName("courseFollow");
    m_copy->setObjectName("courseCopy");
    m_tree->setObjectName("courseTree");
    m_kept->setObjectName("courseKept");
    m_shown->setSourceModel(&m_model);
    m_shown->setRecursiveFilteringEnabled(true);
    m_shown->setAutoAcceptChildRows(true);
    m_shown->setFilterKeyColumn(-1);
    m_shown->setFilterCaseSensitivity(Qt::CaseInsensitive);
    layOut();
    connectAll();
    tellTexts();
}

void CourseDock::layOut()
{
    m_filter->setClearButtonEnabled(true);
    for (QWidget *const touched : std::initializer_list<QWidget *>{m_filter, m_follow, m_copy})
        touched->setMinimumHeight(touchHeight);
    m_follow->setChecked(true);
    m_tree->setModel(m_shown);
    m_tree->setUniformRowHeights(true);
    m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    constexpr int indentation = 12;
    m_tree->setIndentation(indentation);
    m_tree->setItemDelegate(new WithItsEnd(m_tree));
    m_tree->setColumnHidden(CourseModel::End, true);
    m_tree->setHeaderHidden(true);
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_tree->header()->setResizeContentsPrecision(0);
    m_kept->setWordWrap(true);

    auto *const above = new QHBoxLayout;
    above->addWidget(m_filter, 1);
    above->addWidget(m_follow);
    above->addWidget(m_copy);
    auto *const page = new Page;
    page->setFocusProxy(m_tree);
    auto *const all = new QVBoxLayout(page);
    all->addLayout(above);
    all->addWidget(m_tree, 1);
    all->addWidget(m_kept);
    setWidget(new ScrolledPage(page, leastOfDock));
}

void CourseDock::connectAll()
{
    connect(m_filter, &QLineEdit::textChanged, this, [this](const QString &text) { filter(text); });
    connect(m_copy, &QPushButton::clicked, this, [this] { copy(); });
    const auto *const copying =
        new QShortcut(QKeySequence::Copy, m_tree, nullptr, nullptr, Qt::WidgetShortcut);
    connect(copying, &QShortcut::activated, this, [this] { copy(); });
    connect(m_shown, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex &parent) { follow(parent); });
    connect(&m_model, &QAbstractItemModel::rowsRemoved, this, [this] { tellKept(); });
}

void CourseDock::translate(const Translator &translator)
{
    m_translator = translator;
    m_model.translate(translator);
    tellTexts();
}

void CourseDock::tellTexts()
{
    setTitle(m_translator.text(told("till", "Course")));
    m_tree->setAccessibleName(m_translator.text(told("till", "What happened, command by command")));
    const QString filtering = m_translator.text(told("till", "Filter: what the lines contain"));
    m_filter->setPlaceholderText(filtering);
    m_filter->setAccessibleName(filtering);
    m_follow->setText(m_translator.text(told("till", "Follow")));
    m_follow->setToolTip(
        m_translator.text(told("till", "Unfold the newest command, and fold the one before")));
    m_copy->setText(m_translator.text(told("till", "Copy as JSON")));
    m_copy->setToolTip(m_translator.text(told(
        "till", "Copy the lines that a trace has of what is selected, or of all that is shown")));
    tellKept();
}

void CourseDock::tellKept()
{
    const QString most = QString::number(m_model.limits().commands);
    m_kept->setText(m_translator.text(
        m_model.forgotten() == 0
            ? told("till", "The last %1 commands are kept.").with({most})
            : told("till", "The last %1 commands are kept; %2 before them are gone.")
                  .with({most, QString::number(m_model.forgotten())})));
}

void CourseDock::filter(const QString &text)
{
    m_shown->setFilterFixedString(text);
    if (!text.isEmpty())
        m_tree->expandAll();
}

//! Something was added inside of \a parent, or a command.
void CourseDock::follow(const QModelIndex &parent)
{
    if (!m_follow->isChecked())
        return;
    QModelIndex command = parent;
    while (command.parent().isValid())
        command = command.parent();
    if (command.isValid() && command != m_unfolded) {
        if (m_filter->text().isEmpty())
            m_tree->collapse(m_unfolded);
        m_unfolded = command;
    }
    if (parent.isValid())
        m_tree->expand(parent);
    m_tree->scrollToBottom();
}

void CourseDock::copy() const
{
    QModelIndexList indexes = m_tree->selectionModel()->selectedRows();
    const int all = indexes.isEmpty() ? m_shown->rowCount() : 0;
    for (int row = 0; row < all; ++row)
        indexes.append(m_shown->index(row, 0));
    QModelIndexList sources;
    for (const QModelIndex &index : std::as_const(indexes))
        sources.append(m_shown->mapToSource(index));
    QGuiApplication::clipboard()->setText(QString::fromUtf8(m_model.json(sources)));
}

} // namespace till
