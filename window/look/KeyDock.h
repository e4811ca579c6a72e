#ifndef WINDOW_LOOK_KEYDOCK_H
#define WINDOW_LOOK_KEYDOCK_H

#include <QtGui/QAction>
#include <QtWidgets/QDockWidget>

namespace till {

//! What a page of a dock is content with; a smaller screen scrolls it.
constexpr QSize leastOfDock(240, 160);

//! A dock with a key, which brings it before one's eyes, also from behind another dock, and hides
//! it when it is there already.
class KeyDock : public QDockWidget
{
public:
    explicit KeyDock(const QKeySequence &key, QWidget *parent = nullptr);

    //! What the key does: to be added to the window, and to a menu.
    QAction *showAction() { return &m_show; }

protected:
    //! Names the dock, with its key, and its action, of which a menu shows the key by itself.
    void setTitle(const QString &title);

private:
    void showOrHide();

    QAction m_show;
    bool m_wasShown = false;
};

} // namespace till

#endif // WINDOW_LOOK_KEYDOCK_H
