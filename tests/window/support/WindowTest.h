#ifndef TESTS_WINDOW_SUPPORT_WINDOWTEST_H
#define TESTS_WINDOW_SUPPORT_WINDOWTEST_H

#include "tests/support/Printers.h"
#include "tests/till/support/FolderTest.h"
#include "tests/till/support/Results.h"
#include "tests/window/support/Hands.h"
#include "till/course/Notes.h"
#include "till/register/CashDesk.h"

#include <QtWidgets/QLabel>

#include <memory>

namespace till {

//! The window of a till of the sample shop with the real plugin, on a database of its own, and
//! hands that use it.
class WindowTest : public FolderTest, protected Hands
{
protected:
    WindowTest();
    ~WindowTest() override;

    till::Setup setup() const;
    //! Opens a window in place of the one before.
    void open(const till::Setup &setup, const QString &language = QStringLiteral("en"));
    void close();
    //! Opens a script of that text in its dock.
    void openScript(const QByteArray &text);

    const Register &cashRegister() const { return till->cashRegister(); }
    QSharedPointer<const Receipt> receipt() const { return till->cashRegister().receipt(); }
    //! What is said of the position with that number.
    QString said(int posnum) const;
    QString told() const { return window->banner().text(); }
    //! What the label of that name says, also while a dialog stands before it.
    QString textOf(const QString &name) const { return partOf<QLabel>(*window, name).text(); }
    //! The texts of the commands that were begun, and how each ended.
    QStringList commands() const;

    Notes notes;
    QList<QJsonObject> heard;
    const Subscription hearing;
    std::unique_ptr<CashDesk> till;
};

} // namespace till

#endif // TESTS_WINDOW_SUPPORT_WINDOWTEST_H
