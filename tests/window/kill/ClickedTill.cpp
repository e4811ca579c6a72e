// The till in a window, without a display: each line of standard input is a command, which is done
// with clicks and keys. What happens is written to standard output as a trace.

#include "tests/window/support/Hands.h"
#include "till/course/Trace.h"
#include "till/startup/SetupOptions.h"
#include "till/words/RegisterWords.h"
#include "till/words/Words.h"

#include <QtCore/QCommandLineParser>
#include <QtWidgets/QApplication>

#include <iostream>
#include <string>

using namespace till;

namespace {

void use(Hands &hands, Notes &notes, const QString &line)
{
    const QStringList words = splitWords(line).value_or(QStringList());
    if (words.value(0) == QLatin1String("answer")) {
        tellCommand(notes, line, [&] {
            hands.answer({words.value(1) == QLatin1String("yes")});
            return Outcome::done();
        });
        return;
    }
    const auto command = readCommand(words);
    if (!command)
        throw std::runtime_error("no command: " + line.toStdString());
    hands.carryOut(*command);
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // What Qt has to say of its platform is no part of the trace.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOptions(setupOptions());
    parser.addOption(languageOption());
    parser.addOption({QStringLiteral("trace"), {}, QStringLiteral("FILE")});
    parser.process(application);
    Notes notes;
    const auto trace = Trace::start(notes, parser.value(QStringLiteral("trace")));
    const auto setup = readSetup(parser);
    if (!trace || !setup)
        return 2;
    CashDesk desk(*setup, notes);
    Hands hands;
    hands.window = std::make_unique<TillWindow>(desk, notes, QStringLiteral("en"));
    hands.window->switchOn();
    static_cast<QWidget &>(*hands.window).show();
    if (!QTest::qWaitForWindowActive(hands.window.get(), patience))
        return 3;
    std::string line;
    while (std::getline(std::cin, line))
        use(hands, notes, QString::fromStdString(line));
    hands.window.reset();
    return 0;
}
