#ifndef WINDOW_COURSE_COURSEMODEL_H
#define WINDOW_COURSE_COURSEMODEL_H

#include "till/course/Notes.h"
#include "till/course/RebuiltReceipt.h"
#include "till/language/Translator.h"
#include "window/course/CourseNode.h"

#include <QtCore/QAbstractItemModel>

namespace till {

/*!
 * What happens in a register, as a tree that grows while it happens: the commands, and inside of
 * each the actions, triggers, events and what they led to.
 *
 * Of what lies far back the oldest commands are forgotten, whole, so that it does not grow without
 * end; never the newest.
 */
class CourseModel final : public QAbstractItemModel
{
public:
    enum Column { What, End, ColumnCount };

    //! How much is kept.
    struct Limits
    {
        qsizetype commands = 200; //!< and other things that happen by themselves
        qsizetype notes = 20000;
    };

    //! Tells what \a notes tell from now on, in the language of \a translator.
    CourseModel(Notes &notes, const Translator &translator, Limits limits,
                QObject *parent = nullptr);

    void translate(const Translator &translator);

    //! How much is kept at most.
    const Limits &limits() const { return m_limits; }
    //! How many commands were forgotten.
    qint64 forgotten() const { return m_forgotten; }

    //! All that was told of what stands at \a indexes, and inside of it, as the lines that a trace
    //! has which began when this model did.
    QByteArray json(const QModelIndexList &indexes) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void hear(QJsonObject note);
    //! Adds \a note to what it ends; false when it ends nothing that is under way.
    bool end(const QJsonObject &note, qsizetype depth);
    void begin(const QJsonObject &note, qsizetype depth);
    CourseNode &insert(qsizetype depth, const QList<QJsonObject> &notes,
                       const QList<Message> &changes);
    void forget();
    void tellChanged(const CourseNode &node);
    void tellAllChanged(const CourseNode &node);

    CourseNode &nodeAt(const QModelIndex &index) const;
    QModelIndex indexOf(const CourseNode &node, int column = What) const;

    const Limits m_limits;
    Translator m_translator;
    std::unique_ptr<CourseNode> m_root;
    QList<CourseNode *> m_open; //!< those under way, by their depths
    QJsonObject m_scriptLine;   //!< of the command that comes next
    RebuiltReceipt m_receipt;   //!< as the notes so far have it
    qint64 m_lines = 0;         //!< of the trace
    qsizetype m_noteCount = 0;  //!< that are kept
    qint64 m_forgotten = 0;
    Subscription m_subscription;
};

} // namespace till

#endif // WINDOW_COURSE_COURSEMODEL_H
