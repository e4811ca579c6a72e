// Draws the window in several states, in both languages, into the folder that PICTURES names: what
// a reader of the docs sees.

#include "tests/window/support/WindowTest.h"

#include <QtGui/QPainter>

namespace till {

namespace {

class Pictures : public WindowTest
{
protected:
    //! Draws the window, and \a dialog in its middle.
    void draw(const QString &state, QWidget *dialog = nullptr)
    {
        QCoreApplication::processEvents();
        QPixmap picture = window->grab();
        if (dialog) {
            QPainter painter(&picture);
            painter.fillRect(picture.rect(), QColor(0, 0, 0, 90));
            QRect place = dialog->rect();
            place.moveCenter(picture.rect().center());
            painter.drawPixmap(place.topLeft(), dialog->grab());
            painter.setPen(Qt::black);
            painter.drawRect(place.adjusted(-1, -1, 0, 0));
        }
        const QString file =
            QStringLiteral("%1/%2-%3.png").arg(qEnvironmentVariable("PICTURES"), state, language);
        const QImage opaque = picture.toImage().convertToFormat(QImage::Format_RGB888);
        constexpr int smallest = 0;
        EXPECT_TRUE(opaque.save(file, "PNG", smallest)) << file.toStdString();
    }
    //! A receipt with shared tara, with goods that found no place, and a position that is stornoed.
    void fill()
    {
        for (const char *const code : {"PET15", "PET1", "GLASS1", "3*BEER", "DARK", "CHIPS",
                                       "BUCKET5", "2.5*HONEY", "2*PAINT"})
            scan(code);
        window->table().clearSelection();
        select({2});
        answer({true});
        click("storno");
        select({5});
    }

    QString language;
};

class InLanguage : public Pictures, public testing::WithParamInterface<const char *>
{
};

TEST_P(InLanguage, AreDrawn)
{
    language = GetParam();
    till::Setup fresh = setup();
    fresh.database = QStringLiteral(":memory:");
    fresh.settings.insert("PackagingControl:allowSaleEmptyTara", "false");
    open(fresh, language);
    window->shelf().setMoving(false);
    fill();
    draw("receipt");

    select({3});
    click("quantity");
    enter("5");
    draw("refused");
    click(window->banner());

    scan("PET05");
    scan("CAN3");
    whileAsked = [this](QWidget &question) { draw("question", &question); };
    click("subtotal");

    openMenu({Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
    scan("KVASS");
    draw("course");
}

INSTANTIATE_TEST_SUITE_P(Pictures, InLanguage, testing::Values("ru", "en"));

} // namespace

} // namespace till
