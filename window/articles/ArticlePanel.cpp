#include "window/articles/ArticlePanel.h"

#include "window/articles/ArticleDelegate.h"
#include "window/articles/CodeEntry.h"
#include "window/look/Paints.h"

#include <QtCore/QEvent>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolButton>

namespace till {

ArticlePanel::ArticlePanel(const Translator &translator, QWidget *parent)
    : QWidget(parent)
    , m_code(*new QLineEdit(this))
    , m_search(*new QLineEdit(this))
    , m_tiles(*new QListView(this))
    , m_groups(*new QButtonGroup(this))
    , m_nothing(*new QLabel(&m_tiles))
    , m_translator(translator)
{
    m_code.setObjectName(QStringLiteral("code"));
    m_search.setObjectName(QStringLiteral("search"));
    m_tiles.setObjectName(QStringLiteral("tiles"));
    m_nothing.setObjectName(QStringLiteral("nothingFound"));
    layOut();
    translate(translator);
    connect(&m_code, &QLineEdit::returnPressed, this, [this] { enterCode(); });
    connect(&m_search, &QLineEdit::textChanged, this, [this] { filter(); });
    connect(&m_groups, &QButtonGroup::idClicked, this, [this] { filter(); });
    connect(&m_tiles, &QListView::clicked, this, [this](const QModelIndex &tile) { choose(tile); });
    m_tiles.installEventFilter(this);
    m_search.installEventFilter(this);
}

void ArticlePanel::layOut()
{
    auto *const fields = new QHBoxLayout;
    for (QLineEdit *const field : {&m_code, &m_search}) {
        field->setMinimumHeight(touchHeight);
        field->setClearButtonEnabled(true);
        fields->addWidget(field);
    }
    auto *const groups = new QHBoxLayout;
    groups->setSpacing(2);
    for (int group = 0; group <= static_cast<int>(ArticleModel::Group::Other); ++group) {
        auto *const button = new QToolButton(this);
        button->setObjectName(QStringLiteral("group%1").arg(group));
        button->setCheckable(true);
        button->setChecked(group == 0);
        button->setMinimumHeight(touchHeight);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        m_groups.addButton(button, group);
        groups->addWidget(button);
    }
    layOutTiles();
    auto *const all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(4);
    all->addLayout(fields);
    all->addLayout(groups);
    all->addWidget(&m_tiles, 1);
}

void ArticlePanel::layOutTiles()
{
    m_tiles.setModel(&m_articles);
    m_tiles.setItemDelegate(new ArticleDelegate(&m_tiles));
    m_tiles.setViewMode(QListView::IconMode);
    m_tiles.setMovement(QListView::Static);
    m_tiles.setResizeMode(QListView::Adjust);
    m_tiles.setUniformItemSizes(true);
    m_tiles.setSelectionMode(QListView::NoSelection);
    m_tiles.setVerticalScrollMode(QListView::ScrollPerPixel);
    m_tiles.setMouseTracking(true);
    sizeTiles();
    m_nothing.setTextFormat(Qt::PlainText);
    m_nothing.setAlignment(Qt::AlignCenter);
    m_nothing.setWordWrap(true);
    auto *const inPlace = new QVBoxLayout(&m_tiles);
    inPlace->addWidget(&m_nothing);
}

void ArticlePanel::sizeTiles()
{
    m_tiles.setGridSize(ArticleDelegate::tileSize(m_tiles.font()));
}

void ArticlePanel::show(const Catalogue &catalogue)
{
    m_articles.show(catalogue);
    tellNothing();
}

void ArticlePanel::translate(const Translator &translator)
{
    m_translator = translator;
    const auto say = [&](const Message &message) { return translator.text(message); };
    const QString code = say(told("till", "Code, or 3*code"));
    m_code.setPlaceholderText(code);
    m_code.setAccessibleName(code);
    m_code.setToolTip(say(told("till", "Scan or type a code and press Enter. A number and * before "
                                       "it is the quantity; for a tile it is typed here too.")));
    const QString search = say(told("till", "Search (F3)"));
    m_search.setPlaceholderText(search);
    m_search.setAccessibleName(search);
    m_tiles.setAccessibleName(say(told("till", "Articles")));
    const QStringList groups{say(told("till", "All")), say(told("till", "Tara")),
                             say(told("till", "Into tara")), say(told("till", "Other"))};
    for (int group = 0; group < groups.size(); ++group)
        m_groups.button(group)->setText(groups[group]);
    tellNothing();
}

void ArticlePanel::focusCode()
{
    m_code.setFocus();
}

void ArticlePanel::focusSearch()
{
    m_search.setFocus();
    m_search.selectAll();
}

void ArticlePanel::typeCode(const QString &text)
{
    m_code.setFocus();
    m_code.insert(text);
}

void ArticlePanel::filter()
{
    m_articles.filter(static_cast<ArticleModel::Group>(m_groups.checkedId()), m_search.text());
    m_tiles.verticalScrollBar()->setValue(0);
    tellNothing();
}

void ArticlePanel::tellNothing()
{
    const QString sought = brief(m_search.text().trimmed());
    const auto why = [&] {
        if (!m_articles.hasInOtherGroups())
            return told("till", "No article contains \"%1\": clear the search").with({sought});
        if (sought.isEmpty())
            return told("till", "This group has no articles: choose \"%L1\"").with({"All"});
        return told("till", "No article of this group contains \"%1\": choose \"%L2\", or clear "
                            "the search")
            .with({sought, "All"});
    };
    m_nothing.setText(m_translator.text(why()));
    m_nothing.setVisible(m_articles.rowCount() == 0 && m_articles.isShowing());
}

void ArticlePanel::enterCode()
{
    const CodeEntry entry = CodeEntry::read(m_code.text());
    if (entry.code.isEmpty() && !m_code.text().trimmed().isEmpty() && mistaken)
        mistaken(
            told("till", "\"%1\" is a quantity: scan or type a code behind it, or touch a tile")
                .with({brief(m_code.text().trimmed())}));
    if (entry.code.isEmpty() || !chosen)
        return;
    if (chosen(entry.code, entry.count.value_or(1.0)))
        m_code.clear();
    else
        m_code.selectAll();
}

void ArticlePanel::choose(const QModelIndex &tile)
{
    if (!tile.isValid() || !chosen)
        return;
    const auto count = CodeEntry::countAlone(m_code.text());
    if (chosen(m_articles.articleAt(tile.row()).code, count.value_or(1.0)) && count)
        m_code.clear();
}

bool ArticlePanel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (watched == &m_search
        && (key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter)) {
        if (m_articles.rowCount() == 0)
            return true;
        m_tiles.setFocus();
        m_tiles.setCurrentIndex(m_articles.index(0));
        return true;
    }
    if (watched == &m_tiles
        && (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space)) {
        choose(m_tiles.currentIndex());
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void ArticlePanel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        sizeTiles();
}

} // namespace till
