#include "window/scripts/ScriptModel.h"

#include <QtCore/QFileInfo>
#include <QtGui/QFont>

#include <utility>

namespace till {

ScriptModel::ScriptModel(const Translator &translator, QObject *parent)
    : QAbstractTableModel(parent)
    , m_translator(translator)
{
}

void ScriptModel::show(const QList<ScriptLine> &lines, const QString &path)
{
    beginResetModel();
    m_lines = lines;
    m_path = path;
    m_next = -1;
    m_fault.reset();
    endResetModel();
}

void ScriptModel::append(const QString &text)
{
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_lines.append({text, m_path, row + 1});
    endInsertRows();
}

void ScriptModel::mark(qsizetype next, const std::optional<ScriptFault> &fault)
{
    const qsizetype before = std::exchange(m_next, next);
    m_fault = fault;
    for (const qsizetype row : {before - 1, before, next - 1, next})
        tellChanged(row);
}

void ScriptModel::tellChanged(qsizetype row)
{
    if (row >= 0 && row < m_lines.size())
        Q_EMIT dataChanged(index(static_cast<int>(row), 0), index(static_cast<int>(row), Text));
}

void ScriptModel::translate(const Translator &translator)
{
    m_translator = translator;
    if (!m_lines.isEmpty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, Text));
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, Text);
}

int ScriptModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_lines.size());
}

int ScriptModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : columns;
}

QVariant ScriptModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::DisplayRole)
        return index.column() == Mark    ? markOf(index.row())
               : index.column() == Place ? placeOf(index.row())
                                         : textOf(index.row());
    if (index.column() == Mark && (role == Qt::AccessibleTextRole || role == Qt::ToolTipRole))
        return markInWords(index.row());
    if (role == Qt::FontRole && (hasFailed(index.row()) || (!m_fault && index.row() == m_next))) {
        QFont font;
        font.setBold(true);
        return font;
    }
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::Alignment(
            (index.column() == Place ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignTop));
    return {};
}

QString ScriptModel::markOf(int row) const
{
    if (hasFailed(row))
        return QStringLiteral("✗");
    if (m_fault && row >= m_next)
        return {};
    return row == m_next ? QStringLiteral("▶") : row < m_next ? QStringLiteral("✓") : QString();
}

QString ScriptModel::markInWords(int row) const
{
    const QString mark = markOf(row);
    if (mark.isEmpty())
        return {};
    return m_translator.text(hasFailed(row)  ? told("till", "does not hold")
                             : row == m_next ? told("till", "comes next")
                                             : told("till", "done"));
}

QString ScriptModel::placeOf(int row) const
{
    const ScriptLine &line = m_lines[row];
    const QString number = QString::number(line.number);
    return line.file == m_path ? number : QFileInfo(line.file).fileName() + ':' + number;
}

QString ScriptModel::textOf(int row) const
{
    const QString text = printable(m_lines[row].text);
    if (!hasFailed(row))
        return text;
    const ScriptFault &fault = *m_fault;
    if (fault.expected.isEmpty())
        return text + '\n' + fault.reason;
    return text + '\n' + m_translator.text(told("till", "expected: %1").with({fault.expected}))
           + '\n' + m_translator.text(told("till", "found: %1").with({fault.found}));
}

QVariant ScriptModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section == Mark)
        return {};
    return m_translator.text(section == Place ? told("till", "Line") : told("till", "Script"));
}

} // namespace till
