#ifndef WINDOW_COURSE_COURSEDOCK_H
#define WINDOW_COURSE_COURSEDOCK_H

#include "window/course/CourseModel.h"
#include "window/look/KeyDock.h"

#include <QtCore/QPersistentModelIndex>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSortFilterProxyModel;
class QTreeView;
QT_END_NAMESPACE

namespace till {

/*!
 * The course of things in a dock: what happens in the register, told as it happens, also
 * while it is hidden. Its key is F9.
 *
 * It only watches: nothing in it does anything to the register.
 */
class CourseDock final : public KeyDock
{
public:
    //! \a notes must outlive the dock.
    CourseDock(Notes &notes, const Translator &translator, CourseModel::Limits limits = {},
               QWidget *parent = nullptr);

    //! From now on all is told in the language of \a translator.
    void translate(const Translator &translator);

private:
    void layOut();
    void connectAll();
    void tellTexts();
    void tellKept();
    void filter(const QString &text);
    void follow(const QModelIndex &parent);
    void copy() const;

    Translator m_translator;
    CourseModel m_model;
    QSortFilterProxyModel *const m_shown;
    QLineEdit *const m_filter;
    QCheckBox *const m_follow;
    QPushButton *const m_copy;
    QTreeView *const m_tree;
    QLabel *const m_kept;
    QPersistentModelIndex m_unfolded; //!< the newest command in which something happened
};

} // namespace till

#endif // WINDOW_COURSE_COURSEDOCK_H
