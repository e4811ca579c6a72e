#ifndef WINDOW_DESK_TOPSTRIP_H
#define WINDOW_DESK_TOPSTRIP_H

#include "till/language/Translator.h"
#include "window/dialogs/Banner.h"
#include "window/look/ShownReceipt.h"

#include <QtWidgets/QWidget>

#include <memory>

QT_BEGIN_NAMESPACE
class QLabel;
class QMenu;
class QStackedLayout;
class QToolButton;
QT_END_NAMESPACE

namespace till {

//! The strip above all else: which receipt it is, whether tara is controlled, whether the till is
//! at work. A message takes its place while it is told, so that nothing below moves.
class TopStrip final : public QWidget
{
public:
    explicit TopStrip(QWidget *parent = nullptr);

    //! Shows what \a receipt is, or that there is none, in the language of \a translator, and how
    //! far \a control of tara goes.
    void show(const ShownReceipt *receipt, TaraControl control, const Translator &translator);

    //! Shows that the till is at \a work, at once, although no event is handled meanwhile; or, when
    //! it is empty, that it waits for the cashier.
    void showWork(const QString &work);
    QString work() const;

    Banner &banner() { return m_banner; }
    QToolButton &language() { return m_language; }
    QToolButton &menu() { return m_menu; }

private:
    void showControl(TaraControl control, bool isOfReceipt, const Translator &translator);

    using QWidget::show;

    QStackedLayout &m_pages;
    QLabel &m_header;
    QLabel &m_work;
    QLabel &m_control;
    QToolButton &m_language;
    QToolButton &m_menu;
    Banner &m_banner;
};

} // namespace till

#endif // WINDOW_DESK_TOPSTRIP_H
