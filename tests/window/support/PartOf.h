#ifndef TESTS_WINDOW_SUPPORT_PARTOF_H
#define TESTS_WINDOW_SUPPORT_PARTOF_H

#include <QtWidgets/QWidget>

#include <stdexcept>

namespace till {

//! The widget of that name in \a whole. Throws where there is none.
template <typename Widget>
Widget &partOf(const QWidget &whole, const QString &name)
{
    Widget *const found = whole.findChild<Widget *>(name);
    if (!found)
        throw std::runtime_error("no widget " + name.toStdString());
    return *found;
}

} // namespace till

#endif // TESTS_WINDOW_SUPPORT_PARTOF_H
