#include "till/database/DatabaseFile.h"
#include "till/startup/SetupOptions.h"
#include "window/desk/TillWindow.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QFileInfo>
#include <QtCore/QLoggingCategory>
#include <QtWidgets/QApplication>

#include <csignal>
#include <cstdio>

using namespace till;

namespace {

// As those of the console program.
enum ExitStatus { AllWell = 0, UsageError = 2 };

int fail(const QString &text)
{
    std::fputs(qPrintable(text + u'\n'), stderr);
    return UsageError;
}

int run(const Setup &setup, const QString &language)
{
    if (setup.database != QLatin1String(":memory:"))
        makePrivateFolder(QFileInfo(setup.database).absolutePath());
    Notes notes;
    CashDesk desk(setup, notes);
    TillWindow window(desk, notes, language);
    window.switchOn();
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    std::signal(SIGXFSZ, SIG_IGN); // the write that is too long fails instead, and is told
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("till"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TILL_VERSION));
    QLoggingCategory::setFilterRules(QStringLiteral("packaging=false"));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("The till in a window: a small cash register with the packaging plugin."));
    parser.addOptions(setupOptions());
    parser.addOption(languageOption());
    parser.addHelpOption();
    parser.addVersionOption();
    parser.process(application);
    const auto setup = readSetup(parser);
    if (!setup)
        return fail(setup.error().text());
    const auto language = readLanguage(parser);
    if (!language)
        return fail(language.error().text());
    if (!parser.positionalArguments().isEmpty())
        return fail(QStringLiteral("one word too many: ") + parser.positionalArguments()[0]);
    return run(*setup, *language);
}
