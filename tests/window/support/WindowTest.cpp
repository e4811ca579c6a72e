#include "tests/window/support/WindowTest.h"

#include "tests/till/support/SampleShop.h"
#include "window/scripts/ScriptPanel.h"

namespace till {

WindowTest::WindowTest()
    : hearing(notes.subscribe([this](const QJsonObject &note) { heard.append(note); },
                              Notes::Of::CourseAndStates))
{
    open(setup());
}

WindowTest::~WindowTest()
{
    close();
}

till::Setup WindowTest::setup() const
{
    return sampleShop(path("till.sqlite"));
}

void WindowTest::open(const till::Setup &setup, const QString &language)
{
    close();
    till = std::make_unique<CashDesk>(setup, notes);
    window = std::make_unique<TillWindow>(*till, notes, language);
    window->switchOn();
    static_cast<QWidget &>(*window).show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get(), patience));
}

void WindowTest::close()
{
    window.reset();
    till.reset();
}

void WindowTest::openScript(const QByteArray &text)
{
    const QString script = path(QStringLiteral("lines.till"));
    overwrite(script, text);
    press(Qt::Key_F10);
    auto &panel = static_cast<ScriptPanel &>(*find(QStringLiteral("scriptOpen")).parentWidget());
    panel.chooseScript = [script](QWidget *, const QString &) { return script; };
    click(QStringLiteral("scriptOpen"));
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
