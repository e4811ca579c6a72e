#include "tests/window/support/Hands.h"

#include "window/articles/ArticleModel.h"

#include <QtCore/QPointer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListView>
#include <QtWidgets/QPushButton>

namespace till {

namespace {

template <typename... Lambdas>
struct Overloaded : Lambdas...
{
    using Lambdas::operator()...;
};
template <typename... Lambdas>
Overloaded(Lambdas...) -> Overloaded<Lambdas...>;

} // namespace

//! Sees questions come up, and deals with each as soon as it stands there.
class Hands::Watch final : public QObject
{
public:
    explicit Watch(Hands &hands)
        : m_hands(hands)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show && watched->objectName() == QLatin1String("question"))
            QMetaObject::invokeMethod(
                this, [this, watched] { m_hands.meet(static_cast<QWidget &>(*watched)); },
                Qt::QueuedConnection);
        return QObject::eventFilter(watched, event);
    }

private:
    Hands &m_hands;
};

Hands::Hands()
    : m_watch(std::make_unique<Watch>(*this))
{
}

Hands::~Hands() = default;

QWidget &Hands::top() const
{
    QWidget *const modal = QApplication::activeModalWidget();
    return modal ? *modal : *window;
}

void Hands::click(QWidget &widget, QPoint at, Qt::KeyboardModifiers keys)
{
    if (!widget.isVisible())
        throw std::runtime_error("hidden: " + widget.objectName().toStdString());
    QTest::mouseClick(widget.window()->windowHandle(), Qt::LeftButton, keys,
                      widget.mapTo(widget.window(), at.isNull() ? widget.rect().center() : at));
}

void Hands::press(Qt::Key key, Qt::KeyboardModifiers keys)
{
    QTest::keyClick(top().windowHandle(), key, keys);
    QCoreApplication::processEvents();
}

void Hands::type(const QString &text)
{
    for (const QChar sign : text)
        QTest::sendKeyEvent(QTest::Click, top().windowHandle(), Qt::Key_unknown, sign, {});
}

void Hands::scan(const QString &code)
{
    click(find(QStringLiteral("code")));
    find<QLineEdit>(QStringLiteral("code")).selectAll();
    type(code);
    press(Qt::Key_Return);
}

void Hands::touchTile(const QString &code)
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
    throw std::runtime_error("no tile " + code.toStdString());
}

void Hands::select(const QList<int> &posnums)
{
    ReceiptTable &table = window->table();
    Qt::KeyboardModifiers keys;
    for (const int posnum : posnums) {
        const QModelIndex index = rows().index(rows().rowOf(posnum), ReceiptModel::ArticleName);
        if (!index.isValid())
            throw std::runtime_error("no position " + std::to_string(posnum));
        table.scrollTo(index);
        click(*table.viewport(), table.visualRect(index).center(), keys);
        keys = Qt::ControlModifier;
    }
    QCoreApplication::processEvents();
}

void Hands::enter(const QString &text)
{
    if (&top() == window.get())
        throw std::runtime_error("no dialog for " + text.toStdString());
    type(text);
    press(Qt::Key_Return);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    window->activateWindow();
    if (!QTest::qWaitForWindowActive(window.get(), patience))
        throw std::runtime_error("the window does not come back");
}

void Hands::openMenu(const QList<Qt::Key> &keys)
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

void Hands::meet(QWidget &question)
{
    questions.append(partOf<QLabel>(question, QStringLiteral("text")).text());
    const QPointer<QWidget> asked = &question;
    if (whileAsked)
        std::exchange(whileAsked, {})(question);
    if (!asked || !asked->isVisible())
        return;
    const bool isConfirmed = !m_answers.isEmpty() && m_answers.takeFirst();
    click(partOf<QPushButton>(question,
                              isConfirmed ? QStringLiteral("confirm") : QStringLiteral("cancel")));
}

void Hands::enterAt(const QString &button, const QString &text)
{
    click(button);
    enter(text);
}

void Hands::carryOut(const Command &command)
{
    const auto partsOf = [](const command::Split &split) {
        QStringList parts;
        for (const double part : split.parts)
            parts.append(toText(part));
        return parts.join(u'+');
    };
    std::visit(
        Overloaded{[&](const command::Open &open) {
                       click(open.type == Document::Sale ? "openSale" : "openReturn");
                   },
                   [&](const command::Add &add) { scan(toText(add.count) + u'*' + add.article); },
                   [&](const command::ChangeCount &change) {
                       select({change.posnum});
                       enterAt("quantity", toText(change.count));
                   },
                   [&](const command::Storno &storno) {
                       select({storno.posnum});
                       click("storno");
                   },
                   [&](const command::Split &split) {
                       select({split.posnum});
                       enterAt("split", partsOf(split));
                   },
                   [&](const command::Unite &unite) {
                       select(unite.posnums);
                       click("unite");
                   },
                   [&](const command::AttachOrder &order) { enterAt("order", order.number); },
                   [&](const command::AddSoftCheck &check) { enterAt("softCheck", check.number); },
                   [&](const command::Subtotal &) { click("subtotal"); },
                   [&](const command::Pay &pay) {
                       click("pay");
                       enter(pay.tendered ? toText(*pay.tendered) : QString());
                   },
                   [&](const command::Cancel &) { click("cancelReceipt"); }},
        command);
}

} // namespace till
