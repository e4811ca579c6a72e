#ifndef WINDOW_SCRIPTS_SCRIPTMODEL_H
#define WINDOW_SCRIPTS_SCRIPTMODEL_H

#include "till/language/Translator.h"
#include "till/script/Script.h"

#include <QtCore/QAbstractTableModel>

#include <optional>

namespace till {

//! The lines of a script, a row each, with marks at the line that comes next and the one that
//! failed, and there what was expected and what was found.
class ScriptModel final : public QAbstractTableModel
{
public:
    enum Column { Mark, Place, Text };
    static constexpr int columns = Text + 1;

    explicit ScriptModel(const Translator &translator, QObject *parent = nullptr);

    //! Shows \a lines without marks; those of the file \a path have no name before their numbers.
    void show(const QList<ScriptLine> &lines, const QString &path = {});
    //! Adds a line of a script that is being written.
    void append(const QString &text);
    //! The line in row \a next comes next; where there is a \a fault, it is of the line before.
    //! Without a row no line is marked.
    void mark(qsizetype next, const std::optional<ScriptFault> &fault);
    void translate(const Translator &translator);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    bool hasFailed(int row) const { return m_fault && row == m_next - 1; }
    QString markOf(int row) const;
    QString markInWords(int row) const;
    QString placeOf(int row) const;
    QString textOf(int row) const;
    void tellChanged(qsizetype row);

    Translator m_translator;
    QList<ScriptLine> m_lines;
    QString m_path;
    qsizetype m_next = -1; //!< none is marked
    std::optional<ScriptFault> m_fault;
};

} // namespace till

#endif // WINDOW_SCRIPTS_SCRIPTMODEL_H
