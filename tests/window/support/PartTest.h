#ifndef TESTS_WINDOW_SUPPORT_PARTTEST_H
#define TESTS_WINDOW_SUPPORT_PARTTEST_H

#include "tests/support/Patience.h"
#include "tests/support/Printers.h"
#include "tests/till/support/TillFixture.h"
#include "tests/window/support/PartOf.h"

#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QPushButton>

namespace till {

//! A part of the window, put up without it beside a register, and used with mouse and keys.
class PartTest : public TillTest
{
protected:
    //! From now on \a whole is what is used.
    void putUp(QWidget &whole, QSize size = {500, 500})
    {
        m_whole = &whole;
        whole.resize(size);
        whole.show();
        whole.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&whole, patience));
    }

    template <typename Widget>
    Widget &part(const char *name) const
    {
        return partOf<Widget>(*m_whole, name);
    }
    void click(const char *button)
    {
        QTest::mouseClick(&part<QPushButton>(button), Qt::LeftButton);
    }
    static void click(QAbstractItemView &list, const QModelIndex &place)
    {
        list.scrollTo(place);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(place).center());
    }

private:
    QWidget *m_whole = nullptr;
};

} // namespace till

#endif // TESTS_WINDOW_SUPPORT_PARTTEST_H
