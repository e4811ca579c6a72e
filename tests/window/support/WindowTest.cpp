#include "tests/window/support/WindowTest.h"

#include "window/articles/ArticleModel.h"

#include <QtCore/QPointer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListView>
#include <QtWidgets/QPushButton>

namespace till {

//! Sees questions come up, and deals with each as soon as it stands there.
class WindowTest::Hands final : public QObject
{
public:
    explicit Hands(WindowTest &test)
        : m_test(test)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show && watched->objectName() == QLatin1String("question"))
            QMetaObject::invokeMethod(
                this, [this, watched] { m_test.meet(static_cast<QWidget &>(*watched)); },
                Qt::QueuedConnection);
        return QObject::eventFilter(watched, event);
    }

private:
    WindowTest &m_test;
};

WindowTest::WindowTest()
    : hearing(notes.subscribe([this](const QJsonObject &note) { heard.append(note); },
                              Notes::Of::CourseAndStates))
    , m_hands(std::make_unique<Hands>(*this))
{
    open(setup());
}

WindowTest::~WindowTest()
{
    close();
}

till::Setup WindowTest::setup() const
{
    return {directory.filePath("till.sqlite"),
            QStringLiteral(TILL_SHARE_DIR "/catalogue.csv"),
            QStringLiteral(PACKAGINGCONTROL_PLUGIN_FILE),
            {},
            {}};
}

void WindowTest::open(const till::Setup &setup, const QString &language)
{
    close();
    till = std::make_unique<CashDesk>(setup, notes);
    window = std::make_unique<TillWindow>(*till, notes, language);
    window->switchOn();
    static_cast<QWidget &>(*window).show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
}

void WindowTest::close()
{
    window.reset();
    till.reset();
}

QWidget &WindowTest::top() const
{
    QWidget *const modal = QApplication::activeModalWidget();
    return modal ? *modal : *window;
}

void WindowTest::click(QWidget &widget, QPoint at, Qt::KeyboardModifiers keys)
{
    EXPECT_TRUE(widget.isVisible()) << widget.objectName().toStdString();
    QTest::mouseClick(widget.window()->windowHandle(), Qt::LeftButton, keys,
                      widget.mapTo(widget.window(), at.isNull() ? widget.rect().center() : at));
}

void WindowTest::press(Qt::Key key, Qt::KeyboardModifiers keys)
{
    QTest::keyClick(top().windowHandle(), key, keys);
    QCoreApplication::processEvents();
}

void WindowTest::type(const QString &text)
{
    for (const QChar sign : text)
        QTest::sendKeyEvent(QTest::Click, top().windowHandle(), Qt::Key_unknown, sign, {});
}

void WindowTest::scan(const QString &code)
{
    click(find(QStringLiteral("code")));
    find<QLineEdit>(QStringLiteral("code")).selectAll();
    type(code);
    press(Qt::Key_Return);
}

void WindowTest::touchTile(const QString &code)
{
    auto &tiles = find<QListView>(QStringLiteral("tiles"));
    const auto &articles = static_cast<const ArticleModel &>(*tiles.model());
    for (int row = 0; row < articles.rowCount(); ++row) {
        if (articles.articleAt(row).code != code)
            continue;
        tiles.scrollTo(articles.index(row));
        click(*tiles.viewport(), tiles.visualRect(articles.index(row)).center());
        return;
    }
    ADD_FAILURE() << "no tile " << code.toStdString();
}

void WindowTest::select(const QList<int> &posnums)
{
    ReceiptTable &table = window->table();
    Qt::KeyboardModifiers keys;
    for (const int posnum : posnums) {
        const QModelIndex index = rows().index(rows().rowOf(posnum), ReceiptModel::ArticleName);
        ASSERT_TRUE(index.isValid()) << posnum;
        table.scrollTo(index);
        click(*table.viewport(), table.visualRect(index).center(), keys);
        keys = Qt::ControlModifier;
    }
    QCoreApplication::processEvents();
}

void WindowTest::enter(const QString &text)
{
    ASSERT_NE(&top(), window.get()) << "no dialog for " << text.toStdString();
    type(text);
    press(Qt::Key_Return);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
}

void WindowTest::openMenu(const QList<Qt::Key> &keys)
{
    QMetaObject::invokeMethod(
        window.get(),
        [&] {
            for (const Qt::Key key : keys)
                QTest::keyClick(QApplication::activePopupWidget(), key);
        },
        Qt::QueuedConnection);
    click(QStringLiteral("menu")); // returns when the menu is closed
}

void WindowTest::meet(QWidget &question)
{
    questions.append(question.findChild<QLabel *>(QStringLiteral("text"))->text());
    const QPointer<QWidget> asked = &question;
    if (whileAsked)
        std::exchange(whileAsked, {})(question);
    if (!asked || !asked->isVisible())
        return;
    const bool isConfirmed = !m_answers.isEmpty() && m_answers.takeFirst();
    click(*question.findChild<QPushButton *>(isConfirmed ? QStringLiteral("confirm")
                                                         : QStringLiteral("cancel")));
}

QString WindowTest::said(int posnum) const
{
    return rows()
        .index(rows().rowOf(posnum), ReceiptModel::ArticleName)
        .data(Qt::AccessibleTextRole)
        .toString();
}

QStringList WindowTest::commands() const
{
    QStringList texts;
    for (const QJsonObject &note : heard) {
        if (note.value("depth").toInt() != 0)
            continue;
        if (note.value("kind") == QLatin1String("command"))
            texts.append(note.value("text").toString());
        if (note.value("kind") == QLatin1String("outcome"))
            texts.last() += QStringLiteral(": ") + note.value("outcome").toString();
    }
    return texts;
}

} // namespace till
