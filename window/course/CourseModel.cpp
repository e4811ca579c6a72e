#include "window/course/CourseModel.h"

#include "till/course/JsonLine.h"
#include "window/course/CourseWords.h"
#include "window/course/TaraChanges.h"

#include <QtCore/QMap>
#include <QtGui/QFont>

namespace till {

namespace {

//! What things happen inside of, each note of which comes before them.
bool isOpening(const QString &kind)
{
    return kind == "command" || kind == "action" || kind == "event";
}

//! What is ended by a note of \a kind.
QString endedBy(const QString &kind)
{
    static const QHash<QString, QString> begun{{"outcome", "command"}, {"result", "action"}};
    return begun.value(kind);
}

qsizetype notesIn(const CourseNode &node)
{
    qsizetype count = node.notes.size();
    for (const auto &child : node.children)
        count += notesIn(*child);
    return count;
}

void collect(const CourseNode &node, QMap<qint64, QJsonObject> &lines)
{
    for (const QJsonObject &note : node.notes)
        lines.insert(note["line"].toInteger(), note);
    for (const auto &child : node.children)
        collect(*child, lines);
}

} // namespace

CourseModel::CourseModel(Notes &notes, const Translator &translator, Limits limits, QObject *parent)
    : QAbstractItemModel(parent)
    , m_limits(limits)
    , m_translator(translator)
    , m_root(new CourseNode)
    , m_subscription(notes.subscribe([this](const QJsonObject &note) { hear(note); },
                                     Notes::Of::CourseAndStates))
{
}

void CourseModel::translate(const Translator &translator)
{
    m_translator = translator;
    tellAllChanged(*m_root);
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

QByteArray CourseModel::json(const QModelIndexList &indexes) const
{
    QMap<qint64, QJsonObject> lines;
    for (const QModelIndex &index : indexes)
        collect(nodeAt(index), lines);
    QByteArray text;
    for (const QJsonObject &line : std::as_const(lines))
        text += jsonLine(line);
    return text;
}

void CourseModel::hear(QJsonObject note)
{
    note.insert("line", ++m_lines);
    const auto depth = qMax<qsizetype>(note["depth"].toInt(), 0);
    if (!end(note, depth))
        begin(note, depth);
    m_receipt.read(note);
}

bool CourseModel::end(const QJsonObject &note, qsizetype depth)
{
    const QString kind = note["kind"].toString();
    CourseNode *ended = m_open.value(depth);
    if (kind == "answer") {
        const CourseNode &asking = depth == 0 ? *m_root : *m_open.value(depth - 1, m_root.get());
        ended = asking.children.empty() ? nullptr : asking.children.back().get();
        if (!ended || ended->kind() != "question" || ended->notes.size() > 1)
            return false;
    } else if (!ended || ended->kind() != (kind == "trigger" ? QString() : endedBy(kind))) {
        return false;
    }
    if (kind != "answer")
        m_open.resize(depth);
    ended->notes.append(note);
    ++m_noteCount;
    tellChanged(*ended);
    return true;
}

void CourseModel::begin(const QJsonObject &note, qsizetype depth)
{
    const QString kind = note["kind"].toString();
    if (m_open.size() > depth)
        m_open.resize(depth);
    while (m_open.size() < depth) // inside of a trigger, which is told when it is over
        m_open.append(&insert(m_open.size(), {}, {}));
    QList<QJsonObject> notes{note};
    if (const QJsonObject line = std::exchange(m_scriptLine, {}); kind == "command" && depth == 0) {
        if (!line.isEmpty())
            notes.prepend(line);
    } else if (!line.isEmpty()) {
        insert(0, {line}, {});
    }
    if (kind == "script" && depth == 0) {
        m_scriptLine = note;
        return;
    }
    CourseNode &node = insert(depth, notes, changesIn(note, m_receipt));
    if (isOpening(kind))
        m_open.append(&node);
    if (isOfTara(note) && node.parent != m_root.get())
        tellChanged(*node.parent); // which says what it filled
    if (depth == 0)
        forget();
}

CourseNode &CourseModel::insert(qsizetype depth, const QList<QJsonObject> &notes,
                                const QList<Message> &changes)
{
    CourseNode &parent = depth == 0 ? *m_root : *m_open[depth - 1];
    auto node = std::make_unique<CourseNode>();
    node->notes = notes;
    node->changes = changes;
    node->parent = &parent;
    node->row = static_cast<int>(parent.children.size());
    m_noteCount += notes.size();
    beginInsertRows(indexOf(parent), node->row, node->row);
    parent.children.push_back(std::move(node));
    endInsertRows();
    return *parent.children.back();
}

void CourseModel::forget()
{
    auto &commands = m_root->children;
    const auto kept = [&commands] { return static_cast<qsizetype>(commands.size()); };
    while (kept() > 1 && (kept() > m_limits.commands || m_noteCount > m_limits.notes)) {
        beginRemoveRows({}, 0, 0);
        m_noteCount -= notesIn(*commands.front());
        commands.erase(commands.begin());
        for (const auto &command : commands)
            --command->row;
        ++m_forgotten;
        endRemoveRows();
    }
}

void CourseModel::tellChanged(const CourseNode &node)
{
    Q_EMIT dataChanged(indexOf(node), indexOf(node, End));
}

void CourseModel::tellAllChanged(const CourseNode &node)
{
    if (node.children.empty())
        return;
    Q_EMIT dataChanged(indexOf(*node.children.front()), indexOf(*node.children.back(), End));
    for (const auto &child : node.children)
        tellAllChanged(*child);
}

CourseNode &CourseModel::nodeAt(const QModelIndex &index) const
{
    return index.isValid() ? *static_cast<CourseNode *>(index.internalPointer()) : *m_root;
}

QModelIndex CourseModel::indexOf(const CourseNode &node, int column) const
{
    return node.parent ? createIndex(node.row, column, const_cast<CourseNode *>(&node))
                       : QModelIndex();
}

QModelIndex CourseModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return indexOf(*nodeAt(parent).children[static_cast<std::size_t>(row)], column);
}

QModelIndex CourseModel::parent(const QModelIndex &child) const
{
    return child.isValid() ? indexOf(*nodeAt(child).parent) : QModelIndex();
}

int CourseModel::rowCount(const QModelIndex &parent) const
{
    return parent.column() > 0 ? 0 : static_cast<int>(nodeAt(parent).children.size());
}

int CourseModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

QVariant CourseModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const CourseNode &node = nodeAt(index);
    if (role == Qt::AccessibleTextRole || role == Qt::ToolTipRole) {
        const QString end = whatCameOfIt(node, m_translator);
        const QString what = whatHappened(node, m_translator);
        return end.isEmpty() ? what : what + QStringLiteral(" — ") + end;
    }
    if (role == Qt::DisplayRole)
        return index.column() == What ? whatHappened(node, m_translator)
                                      : whatCameOfIt(node, m_translator);
    if (role == Qt::FontRole && (endedBadly(node) || node.kind() == "event")) {
        QFont font;
        font.setBold(true);
        return font;
    }
    return {};
}

QVariant CourseModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return m_translator.text(section == What ? told("till", "What happened")
                                             : told("till", "What came of it"));
}

} // namespace till
