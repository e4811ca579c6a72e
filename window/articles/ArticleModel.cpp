#include "window/articles/ArticleModel.h"

#include "till/view/DisplayText.h"

namespace till {

namespace {

ArticleModel::Group groupOf(const ArticleData &article)
{
    switch (article.taraMode) {
    case Tmc::Tara:
        return ArticleModel::Group::Tara;
    case Tmc::PackagingGoods:
        return ArticleModel::Group::IntoTara;
    default:
        return ArticleModel::Group::Other;
    }
}

} // namespace

void ArticleModel::show(const Catalogue &catalogue)
{
    m_catalogue = &catalogue;
    fill();
}

void ArticleModel::filter(Group group, const QString &text)
{
    m_group = group;
    m_text = text.trimmed();
    fill();
}

void ArticleModel::fill()
{
    if (!m_catalogue)
        return;
    beginResetModel();
    m_articles = m_text.isEmpty() ? m_catalogue->articles() : m_catalogue->containing(m_text);
    const qsizetype inAllGroups = m_articles.size();
    if (m_group != Group::All)
        m_articles.removeIf(
            [this](const auto &article) { return groupOf(article->data) != m_group; });
    m_hasInOtherGroups = m_articles.size() < inAllGroups;
    endResetModel();
}

int ArticleModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_articles.size());
}

QVariant ArticleModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const ArticleData &article = articleAt(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return printable(article.name);
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return printable(QStringList{article.name, article.code, toText(article.price)}.join(
            QStringLiteral(", ")));
    default:
        return {};
    }
}

} // namespace till
