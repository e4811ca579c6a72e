// Draws the window in several states into the folder that is named, in both languages: what a
// reader of the docs sees.

#include "tests/window/support/WindowTest.h"

#include <QtWidgets/QApplication>

namespace till {

namespace {

class Pictures : public WindowTest
{
protected:
    void draw(const QString &state)
    {
        QCoreApplication::processEvents();
        const QString file =
            QStringLiteral("%1/%2-%3.png").arg(qEnvironmentVariable("PICTURES"), state, language);
        EXPECT_TRUE(window->grab().save(file)) << file.toStdString();
    }

    QString language;
};

TEST_F(Pictures, All)
{
    for (const QString &code : Translator::languages()) {
        language = code;
        till::Setup fresh = setup();
        fresh.database = QStringLiteral(":memory:");
        open(fresh, code);
        window->shelf().setMoving(false);
        draw("empty");
        scan("PET15");
        scan("PET1");
        scan("GLASS1");
        scan("3*BEER");
        draw("filled");
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
        click("subtotal");
        whileAsked = [this](QWidget &question) {
            EXPECT_TRUE(question.grab().save(QStringLiteral("%1/question-%2.png")
                                                 .arg(qEnvironmentVariable("PICTURES"), language)));
        };
        click("cancelReceipt");
        select({3});
        click("quantity");
        EXPECT_TRUE(top().grab().save(
            QStringLiteral("%1/quantity-%2.png").arg(qEnvironmentVariable("PICTURES"), language)));
        enter("5");
        draw("refused");
        click(window->banner());
        fresh.catalogue = "/no/such/catalogue.csv";
        open(fresh, code);
        draw("fault");
    }
}

} // namespace

} // namespace till
