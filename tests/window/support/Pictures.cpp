// Draws the window in several states into the folder that is named, in both languages: what a
// reader of the docs sees.

#include "tests/window/support/WindowTest.h"

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolButton>

#include <algorithm>

namespace till {

namespace {

class Pictures : public WindowTest
{
protected:
    Pictures() { QApplication::setCursorFlashTime(0); }

    void draw(const QString &state) const
    {
        settle();
        save(window->grab(), state);
    }
    //! The same with \a dialog over it, as one sees it.
    void drawWith(QWidget &dialog, const QString &state) const
    {
        settle();
        QPixmap picture = window->grab();
        QPainter painter(&picture);
        painter.fillRect(picture.rect(), QColor(0, 0, 0, 70));
        QRect place(QPoint(), dialog.size());
        place.moveCenter(picture.rect().center());
        painter.drawPixmap(place, dialog.grab());
        painter.drawRect(place);
        painter.end();
        save(picture, state);
    }
    //! Waits until the buttons that clear fields have faded in or out, which is all that moves.
    void settle() const
    {
        EXPECT_TRUE(QTest::qWaitFor(
            [this] {
                const auto fields = window->findChildren<QLineEdit *>();
                return std::all_of(fields.cbegin(), fields.cend(), [](const QLineEdit *field) {
                    const auto *const button = field->findChild<QToolButton *>();
                    return !button
                           || button->property("opacity").toDouble()
                                  == (field->text().isEmpty() ? 0 : 1);
                });
            },
            patience));
        QCoreApplication::processEvents();
    }
    void save(const QPixmap &picture, const QString &state) const
    {
        const QString file =
            QStringLiteral("%1/%2-%3.png").arg(qEnvironmentVariable("PICTURES"), state, language);
        EXPECT_TRUE(picture.save(file)) << file.toStdString();
    }

    //! Opens a window of the sample shop, where empty tara cannot be sold, without a receipt.
    void openIn(const QString &code)
    {
        language = code;
        till::Setup fresh = setup();
        fresh.database = QStringLiteral(":memory:");
        fresh.settings = {{"PackagingControl:allowSaleEmptyTara", "false"}};
        open(fresh, code);
        QApplication::setActiveWindow(window.get()); // there is nobody else to do so
        window->shelf().setMoving(false);
    }
    void cancelReceipt()
    {
        answer({true});
        click("cancelReceipt");
    }

    QString language;
};

TEST_F(Pictures, OfTheDocs)
{
    const QStringList languages = Translator::languages();
    for (const QString &code : languages) {
        openIn(code);
        draw("empty");
        scan("CAN3");
        scan("PET1");
        scan("1.5*BEER");
        scan("DARK");
        scan("CHIPS");
        draw("filled");
        cancelReceipt();
        scan("GLASS1");
        scan("3*DARK");
        scan("PET15");
        select({1});
        click("quantity");
        enter("0.5"); // its goods cannot follow, as they are in two taras
        scan("2*KVASS");
        scan("CHIPS");
        select({5});
        answer({true});
        click("storno");
        select({2});
        draw("over-full");
        cancelReceipt();
        scan("PET1");
        scan("BEER");
        scan("PET15");
        whileAsked = [this](QWidget &question) { drawWith(question, "question"); };
        click("subtotal");
    }
}

TEST_F(Pictures, OfOtherStates)
{
    const QStringList languages = Translator::languages();
    for (const QString &code : languages) {
        openIn(code);
        scan("PET15");
        scan("PET1");
        scan("GLASS1");
        scan("3*BEER");
        scan("DARK");
        scan("CHIPS");
        scan("BUCKET5");
        scan("2.5*HONEY");
        scan("2*PAINT");
        scan("2*KVASS");
        select({2});
        answer({true});
        click("storno");
        select({4});
        draw("stornoed");
        select({3});
        click("quantity");
        drawWith(top(), "quantity");
        enter("5");
        draw("refused");
        click(window->banner());
        press(Qt::Key_F9);
        draw("course");
        press(Qt::Key_F10);
        draw("scripts");
        till::Setup broken = setup();
        broken.catalogue = "/no/such/catalogue.csv";
        open(broken, code);
        draw("fault");
    }
}

} // namespace

} // namespace till
