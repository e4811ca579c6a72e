#ifndef WINDOW_LOOK_SCROLLEDPAGE_H
#define WINDOW_LOOK_SCROLLEDPAGE_H

#include <QtWidgets/QScrollArea>

namespace till {

//! A page that takes what room there is, and is scrolled where that is too little for it: nothing
//! of it is pushed off the screen, and it pushes nothing off.
class ScrolledPage final : public QScrollArea
{
public:
    //! Owns \a page. Less room than \a least is never asked for, unless the page needs less.
    ScrolledPage(QWidget *page, QSize least, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    const QSize m_least;
};

} // namespace till

#endif // WINDOW_LOOK_SCROLLEDPAGE_H
